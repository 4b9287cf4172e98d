#pragma once

#include "Mirel/Audio/Plugin/CMIDICCMessage.h"
#include "Mirel/Core/CEnable.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/IValueChangedEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CRefreshTimer.h"
#include "Mirel/System/ITimerProvider.h"

namespace Mirel::Audio::Plugin
{

/// A copy of the last controller message that follows it by a timer: what the audio thread wrote becomes an
/// event on the thread of the timer, as a rule the GUI's. Disabled it stands still. That thread only.
class CConstMIDICCMessageTimerProxy : public virtual IConstMIDICCMessage,
                                      public virtual Core::IValueChangedEventProvider,
                                      public virtual Core::IRefreshTime,
                                      public virtual Core::IEnable
{
public:
    /// Both must outlive this object; the period is in milliseconds.
    CConstMIDICCMessageTimerProxy(const CMIDICCMessage& source_, System::ITimerProvider& timerProvider,
                                  int periodMs);
    CConstMIDICCMessageTimerProxy(const CConstMIDICCMessageTimerProxy&) = delete;
    CConstMIDICCMessageTimerProxy& operator=(const CConstMIDICCMessageTimerProxy&) = delete;

    int GetChannel() const override { return copy.channel; }
    int GetNumber() const override { return copy.number; }
    int GetValue() const override { return copy.value; }

    Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }

    int GetRefreshTime() const override { return timer.GetPeriod(); }
    void SetRefreshTime(int milliseconds) override { timer.SetPeriod(milliseconds); }

    bool IsEnabled() const override { return enabled.IsEnabled(); }
    Core::IEventProvider& GetEnableChangedEventProvider() const override
    {
        return enabled.GetEnableChangedEventProvider();
    }
    void Enable(bool enable) override;

private:
    void Refresh();

    const CMIDICCMessage& source;
    CMIDICCMessage::CSnapshot copy;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of the message.
    Core::CEnable enabled;
    Core::TCommand<CConstMIDICCMessageTimerProxy> refresh{this, &CConstMIDICCMessageTimerProxy::Refresh};
    DataModel::CRefreshTimer timer{refresh};
};

} // namespace Mirel::Audio::Plugin
