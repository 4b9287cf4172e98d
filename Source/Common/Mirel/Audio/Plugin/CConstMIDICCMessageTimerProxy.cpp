#include "Mirel/Audio/Plugin/CConstMIDICCMessageTimerProxy.h"

namespace Mirel::Audio::Plugin
{

CConstMIDICCMessageTimerProxy::CConstMIDICCMessageTimerProxy(const CMIDICCMessage& source_,
                                                             System::ITimerProvider& timer_, int periodMs)
    : source(source_),
      timer(timer_),
      copy(source_.Get()),
      refresh(this, &CConstMIDICCMessageTimerProxy::Refresh)
{
    timer.AddTimer(periodMs, &refresh);
}

CConstMIDICCMessageTimerProxy::~CConstMIDICCMessageTimerProxy()
{
    Core::ICommand* command = &refresh;
    timer.RemoveTimer(command, false);
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
