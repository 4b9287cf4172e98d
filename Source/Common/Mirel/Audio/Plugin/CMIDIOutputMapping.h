#pragma once

#include "Mirel/Audio/Plugin/CMIDICCSetting.h"
#include "Mirel/Audio/Plugin/MIDIEvents.h"

namespace Mirel::Audio::Plugin
{

/// Sends the output parameters that are bound to MIDI controllers. Audio thread; nothing is allocated or
/// waited for, as far as the output does neither.
class CMIDIOutputMapping
{
public:
    CMIDIOutputMapping();

    /// Posts the value, placed between the ends of the setting, as a controller message; nothing if the
    /// setting is not enabled.
    void Process(float value, const CMIDICCSetting& setting, IMIDIOutput& output) const;

    /// The controller's value from 0 to 127. A value that is not a number gives 0.
    static int ControllerValue(float value, const CMIDICCSetting& setting);
};

} // namespace Mirel::Audio::Plugin
