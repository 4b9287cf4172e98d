#include "Mirel/System/CTimerWithThreadSynchronization.h"

#include "Mirel/Core/CAutoLock.h"
#include "Mirel/Core/TArgCommandWrapper.h"
#include "Mirel/Core/TIArgCommand.h"
#include "Mirel/System/CCriticalSection.h"

#include <unordered_map>
#include <utility>

namespace Mirel::System
{

using Core::CAutoLock;
using Core::ICommand;

namespace
{
constexpr int mostSkippedTicks = 16;
} // namespace

/// The timers by command. Shared with the calls in flight, which may come after the owner's end.
class CTimerWithThreadSynchronization::CTimers : public std::enable_shared_from_this<CTimers>
{
public:
    CTimers(ITimerProvider* ticking_, IThreadInvoker* target_) : ticking(ticking_), target(target_) {}

    void Add(int periodMs, ICommand* command);
    void Remove(ICommand* command);
    void RemoveAll();
    void Post(ICommand* command);
    void Run(ICommand* command);

private:
    ITimerProvider* ticking;
    IThreadInvoker* target;
    CCriticalSection lock;
    std::unordered_map<ICommand*, ICommand*> adapters; ///< destroyed by the ticking provider
};

/// What the ticking provider runs instead of the command.
class CTimerWithThreadSynchronization::CThreadSyncCommandAdapter : public ICommand
{
public:
    CThreadSyncCommandAdapter(ICommand* command_, CTimers& owner_) : command(command_), owner(owner_) {}

    void Execute() override
    {
        {
            const CAutoLock guard(section);
            if (!done && skippedTicks < mostSkippedTicks)
            {
                ++skippedTicks;
                return;
            }
            done = false;
            skippedTicks = 0;
        }
        owner.Post(command);
    }

    void SetDone()
    {
        const CAutoLock guard(section);
        done = true;
    }

private:
    ICommand* command;
    CTimers& owner;
    bool done = true; ///< nothing is in flight
    CCriticalSection section;
    int skippedTicks = 0;
};

/// The call in flight, without its argument.
class CTimerWithThreadSynchronization::CRunCommand : public Core::TIArgCommand<ICommand*>
{
public:
    explicit CRunCommand(std::shared_ptr<CTimers> timers_) : timers(std::move(timers_)) {}

    void Execute(ICommand* command) override { timers->Run(command); }

private:
    std::shared_ptr<CTimers> timers;
};

void CTimerWithThreadSynchronization::CTimers::Add(int periodMs, ICommand* command)
{
    const CAutoLock guard(lock);
    ICommand*& adapter = adapters[command];
    if (adapter == nullptr)
    {
        adapter = new CThreadSyncCommandAdapter(command, *this);
    }
    else
    {
        // The ticking provider may be one that keeps a command twice.
        ICommand* known = adapter;
        ticking->RemoveTimer(known, false);
    }
    ticking->AddTimer(periodMs, adapter);
}

void CTimerWithThreadSynchronization::CTimers::Remove(ICommand* command)
{
    ICommand* adapter = nullptr;
    {
        const CAutoLock guard(lock);
        const auto place = adapters.find(command);
        if (place == adapters.end())
        {
            return;
        }
        adapter = place->second;
        adapters.erase(place);
    }
    ticking->RemoveTimer(adapter, true); // waits for its tick
}

void CTimerWithThreadSynchronization::CTimers::RemoveAll()
{
    std::unordered_map<ICommand*, ICommand*> removed;
    {
        const CAutoLock guard(lock);
        removed.swap(adapters);
    }
    for (auto& [command, adapter] : removed)
    {
        ticking->RemoveTimer(adapter, true);
    }
}

void CTimerWithThreadSynchronization::CTimers::Post(ICommand* command)
{
    using Call = Core::TArgCommandWrapper<CRunCommand>;
    target->InvokeAsync(new Call(CRunCommand(shared_from_this()), command), true);
}

void CTimerWithThreadSynchronization::CTimers::Run(ICommand* command)
{
    {
        const CAutoLock guard(lock);
        const auto place = adapters.find(command);
        if (place == adapters.end())
        {
            return;
        }
        static_cast<CThreadSyncCommandAdapter*>(place->second)->SetDone();
    }
    command->Execute();
}

CTimerWithThreadSynchronization::CTimerWithThreadSynchronization(ITimerProvider* ticking,
                                                                 IThreadInvoker* target)
    : timers(std::make_shared<CTimers>(ticking, target))
{
}

CTimerWithThreadSynchronization::~CTimerWithThreadSynchronization()
{
    timers->RemoveAll();
}

void CTimerWithThreadSynchronization::AddTimer(int periodMs, ICommand* command)
{
    if (command != nullptr)
    {
        timers->Add(periodMs, command);
    }
}

void CTimerWithThreadSynchronization::RemoveTimer(ICommand*& command, bool destroyCommand)
{
    timers->Remove(command);
    DestroyTimerCommand(command, destroyCommand);
}

} // namespace Mirel::System
