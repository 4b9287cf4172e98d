#include "Mirel/Audio/Plugin/CMIDIInputMapping.h"

#include "Mirel/Audio/Plugin/MIDIBytes.h"

#include <algorithm>

namespace Mirel::Audio::Plugin
{

namespace
{

bool Follows(const CMIDICCSetting& setting, const CMIDICCMessage::CSnapshot& message)
{
    const int channel = setting.GetChannel();
    return setting.IsEnabled() && (channel == 0 || channel == message.channel) &&
           setting.GetNumber() == message.number;
}

float MappedValue(const CMIDICCSetting& setting, int controllerValue)
{
    constexpr float perStep = 0.007874016f; // 1 / 127
    const float y = setting.EvaluateCurve(static_cast<float>(controllerValue) * perStep);
    const float min = setting.GetMin();
    return min + (setting.GetMax() - min) * y;
}

} // namespace

CMIDIInputMapping::CMIDIInputMapping(CMIDICCMessage& lastMessage_) : lastMessage(&lastMessage_)
{
    // The table of curves is built at its first use, which is not to be on the audio thread.
    static_cast<void>(DataModel::Objects::GetResponseCurve(0));
}

void CMIDIInputMapping::Process(const CMIDIEvent& event, const CMIDICCSettings& settings,
                                IInputParams& params) const
{
    if ((event.status & MIDIKindMask) != MIDIController)
    {
        return;
    }
    const CMIDICCMessage::CSnapshot message{(event.status & MIDIChannelMask) + 1, event.data1 & MIDIDataMask,
                                            event.data2 & MIDIDataMask};
    lastMessage->Set(message);
    const int count = std::min(settings.GetCount(), params.GetCount());
    for (int i = 0; i < count; ++i)
    {
        if (Follows(settings[i], message))
        {
            params[i].SetValue(MappedValue(settings[i], message.value));
        }
    }
}

} // namespace Mirel::Audio::Plugin
