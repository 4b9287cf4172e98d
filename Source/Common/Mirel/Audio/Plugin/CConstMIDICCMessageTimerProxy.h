#pragma once

#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/IValueChangedEventProvider.h"
#include "Mirel/DataModel/CTimedCopy.h"
#include "Mirel/System/ITimerProvider.h"

namespace Mirel::Audio::Plugin
{

/// A copy of the last controller message that follows it by a timer: what the audio thread wrote becomes an
/// event on the thread of the timer, as a rule the GUI's. Disabled it stands still. That thread only.
class CConstMIDICCMessageTimerProxy : public virtual IConstMIDICCMessage,
                                      public virtual Core::IValueChangedEventProvider,
                                      public DataModel::CTimedCopy
{
public:
    /// Both must outlive this object; the period is in milliseconds.
    CConstMIDICCMessageTimerProxy(const CMIDICCMessage& source_, System::ITimerProvider& timerProvider,
                                  int periodMs);

    int GetChannel() const override { return copy.channel; }
    int GetNumber() const override { return copy.number; }
    int GetValue() const override { return copy.value; }

    Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }
    void Refresh() override;

private:
    const CMIDICCMessage& source;
    CMIDICCMessage::CSnapshot copy;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of the message.
};

} // namespace Mirel::Audio::Plugin
