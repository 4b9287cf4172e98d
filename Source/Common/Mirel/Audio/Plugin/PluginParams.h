#pragma once

#include "Mirel/Audio/Plugin/CParamValue.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/Containers/TIVector.h"
#include "Mirel/Core/TIValue.h"

namespace Mirel::Audio::Plugin
{

/// The value of an input parameter as the framework sets it: SetValue asks whoever records the changes, as a
/// rule the host. Any thread. The audio thread sets it too, for MIDI input, so that SetValue must not wait
/// there.
using IInputParam = Core::TIValue<float>;

/// The value of an output parameter. Set on the audio thread, read on any.
class IOutputParam : public virtual Core::TIValue<float>
{
public:
    /// Publishes the value through the host's automation, which records it. Audio thread: must not wait.
    virtual void Automate(float value) = 0;
};

using IInputParams = Containers::TIVector<IInputParam>;
using IOutputParams = Containers::TIVector<IOutputParam>;

/// An output parameter without a host: what is automated is just stored.
class COutputParamValue : public virtual IOutputParam, public CParamValue
{
public:
    using CParamValue::CParamValue;
    void Automate(float newValue) override { SetValue(newValue); }
};

using CInputParamValues = Containers::TDynamicCollection<CParamValue, IInputParam>;
using COutputParamValues = Containers::TDynamicCollection<COutputParamValue, IOutputParam>;

} // namespace Mirel::Audio::Plugin
