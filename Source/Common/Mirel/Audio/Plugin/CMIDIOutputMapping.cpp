#include "Mirel/Audio/Plugin/CMIDIOutputMapping.h"

#include "Mirel/Audio/Plugin/MIDIBytes.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"

#include <algorithm>

namespace Mirel::Audio::Plugin
{

namespace
{

/// NaN becomes 0.
float ClampToUnit(float x)
{
    return x > 0.0f ? std::min(x, 1.0f) : 0.0f;
}

} // namespace

CMIDIOutputMapping::CMIDIOutputMapping()
{
    // The table of curves is built at its first use, which is not to be on the audio thread.
    static_cast<void>(DataModel::Objects::GetResponseCurve(0));
}

int CMIDIOutputMapping::ControllerValue(float value, const CMIDICCSetting& setting)
{
    constexpr double highest = 127.0;
    const float min = setting.GetMin();
    const float max = setting.GetMax();
    const float x = min < max || min > max ? (value - min) / (max - min) : value - min;
    const float y = setting.EvaluateCurve(ClampToUnit(x));
    return std::max(Core::TruncateToInt32(std::min(static_cast<double>(y) * highest + 0.5, highest)), 0);
}

void CMIDIOutputMapping::Process(float value, const CMIDICCSetting& setting, IMIDIOutput& output) const
{
    if (!setting.IsEnabled())
    {
        return;
    }
    // A channel of 0, every channel, cannot be sent on: the first stands in for it.
    const int channel = std::max(setting.GetChannel(), 1);
    output.Post({static_cast<std::uint8_t>(MIDIController + channel - 1),
                 static_cast<std::uint8_t>(setting.GetNumber()),
                 static_cast<std::uint8_t>(ControllerValue(value, setting))});
}

} // namespace Mirel::Audio::Plugin
