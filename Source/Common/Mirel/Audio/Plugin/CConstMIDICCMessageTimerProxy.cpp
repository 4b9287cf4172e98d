#include "Mirel/Audio/Plugin/CConstMIDICCMessageTimerProxy.h"

namespace Mirel::Audio::Plugin
{

CConstMIDICCMessageTimerProxy::CConstMIDICCMessageTimerProxy(const CMIDICCMessage& source_,
                                                             System::ITimerProvider& timerProvider,
                                                             int periodMs)
    : source(source_),
      copy(source_.Get())
{
    SetRefreshTime(periodMs);
    StartTimer(&timerProvider);
}

void CConstMIDICCMessageTimerProxy::Refresh()
{
    const CMIDICCMessage::CSnapshot latest = source.Get();
    if (!(latest == copy))
    {
        copy = latest;
        changed.Notify();
    }
}

} // namespace Mirel::Audio::Plugin
