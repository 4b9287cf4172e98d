#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

/// Takes changes of parameters that begin inside the plug-in, so that the host can record them. The host's
/// object, asked for from the controller.
///
/// Any thread, the audio thread included (a MIDI controller moves parameters there): no operation may wait or
/// allocate.
class IAAXAutomationDelegate : public IACFUnknown
{
public:
    /// A hand is on the parameter, or off it again. They come in pairs.
    virtual std::int32_t PostTouch(const char* parameterId) = 0;
    virtual std::int32_t PostRelease(const char* parameterId) = 0;

    /// Asks for a value from 0 to 1. The value counts once the host gives it to the parameters object, which
    /// it may do before this returns, or later from a thread of its own.
    virtual std::int32_t PostValue(const char* parameterId, double normalized) = 0;

protected:
    ~IAAXAutomationDelegate() = default;
};
