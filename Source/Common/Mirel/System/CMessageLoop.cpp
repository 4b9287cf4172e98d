#include "Mirel/System/CMessageLoop.h"

#include "Mirel/Core/CAutoLock.h"

#include <utility>

namespace Mirel::System
{

using Core::CAutoLock;

CMessageLoop::CMessageLoop(const ITickSource& source)
    : timers(source),
      runCommand(this, &CMessageLoop::Run),
      thread(&runCommand, false, false),
      serializer(this)
{
}

CMessageLoop::~CMessageLoop()
{
    Stop();
}

void CMessageLoop::Start()
{
    if (IsCurrent())
    {
        run = true;
        return;
    }
    const CAutoLock guard(startStopLock);
    if (run)
    {
        return;
    }
    thread.Join(-1); // a loop that stopped itself was not waited for
    run = true;
    wake.Set();      // for what was posted while the loop stood still
    running.Reset(); // not when the loop ends: it may end before this thread looks
    thread.Start();
    while (!running.IsSet())
    {
        running.Wait(-1);
    }
}

void CMessageLoop::Stop()
{
    if (IsCurrent())
    {
        run = false;
        return;
    }
    const CAutoLock guard(startStopLock);
    run = false;
    wake.Set();
    thread.Join(-1);
}

bool CMessageLoop::IsCurrent() const
{
    const pthread_t id = threadId;
    return id != 0 && pthread_equal(id, pthread_self()) != 0;
}

bool CMessageLoop::Invoke(Core::ICommand* command, bool owned)
{
    if (command == nullptr)
    {
        return false;
    }
    if (IsCurrent())
    {
        const Core::TOwnership<Core::ICommand> holder(command, owned);
        holder->Execute();
        return true;
    }
    CEvent done(false);
    Post(command, owned, &done);
    while (!done.IsSet()) // the event stands on this stack: a spurious wake must not end its life
    {
        done.Wait(-1);
    }
    return true;
}

bool CMessageLoop::InvokeAsync(Core::ICommand* command, bool owned)
{
    if (command == nullptr)
    {
        return false;
    }
    Post(command, owned, nullptr);
    return true;
}

void CMessageLoop::Post(Core::ICommand* command, bool owned, CEvent* done)
{
    {
        const CAutoLock guard(requestLock);
        requests.push_back({Core::TOwnership<Core::ICommand>(command, owned), done});
    }
    wake.Set();
}

void CMessageLoop::AddTimer(int periodMs, Core::ICommand* command)
{
    if (command != nullptr)
    {
        timers.Add(periodMs, command);
        wake.Set();
    }
}

void CMessageLoop::RemoveTimer(Core::ICommand*& command, bool destroyCommand)
{
    timers.Remove(command);
    DestroyTimerCommand(command, destroyCommand);
}

void CMessageLoop::Run()
{
    started = true;
    threadId = pthread_self();
    running.Set();
    while (run)
    {
        // To the nanosecond: whole milliseconds alone would have it run in circles through the last of them.
        wake.Wait(waitMs, timers.GetRestNanoseconds());
        RunPending();
        if (run)
        {
            waitMs = timers.Scan();
        }
    }
    threadId = 0;
    started = false;
}

void CMessageLoop::RunPending()
{
    while (run)
    {
        const bool requestRan = RunFirstRequest();
        const bool timerRan = timers.RunFirstDue();
        if (!requestRan && !timerRan)
        {
            return;
        }
    }
}

bool CMessageLoop::RunFirstRequest()
{
    std::list<SRequest> first;
    {
        const CAutoLock guard(requestLock);
        if (requests.empty())
        {
            return false;
        }
        first.splice(first.begin(), requests, requests.begin());
    }
    SRequest& request = first.front();
    request.command->Execute();
    if (request.done != nullptr)
    {
        request.done->Set();
    }
    return true;
}

} // namespace Mirel::System
