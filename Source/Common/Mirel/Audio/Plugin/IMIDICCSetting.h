#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::Audio::Plugin
{

/// How a parameter is bound to a MIDI controller. Any thread; the setters keep to the ranges and ignore what
/// is not finite.
class IMIDICCSetting
{
public:
    /// 1 to 16. 0 stands for every channel on input and for the first on output.
    virtual int GetChannel() const = 0;
    virtual void SetChannel(int channel) = 0;

    /// The controller, 0 to 127.
    virtual int GetNumber() const = 0;
    virtual void SetNumber(int number) = 0;

    virtual bool IsEnabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;

    /// The code of a response curve (ResponseCurves.h), 0 to 12.
    virtual int GetCurve() const = 0;
    virtual void SetCurve(int code) = 0;

    /// The parameter's values at the low and the high end of the controller, in the parameter's unit; min may
    /// be the greater.
    virtual float GetMin() const = 0;
    virtual void SetMin(float min) = 0;
    virtual float GetMax() const = 0;
    virtual void SetMax(float max) = 0;

    /// Fires after every change, on the thread that made it.
    virtual Core::IEventProvider& GetChangedEventProvider() const = 0;

    virtual ~IMIDICCSetting() = default;
};

} // namespace Mirel::Audio::Plugin
