#include "Mirel/GUI/Native/COSXThreadInvoker.h"

#include "Mirel/Core/CAutoLock.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/System/CCriticalSection.h"
#include "Mirel/System/CEvent.h"

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace Mirel::GUI
{

using Core::CAutoLock;
using Command = Core::TOwnership<Core::ICommand>;

/// The calls in flight. Shared with the run loop's callbacks, which may come after the invoker's end.
class COSXThreadInvoker::CCalls
{
public:
    std::uint64_t Add(Core::ICommand* command, bool owned)
    {
        const CAutoLock guard(lock);
        calls.emplace(++last, Command(command, owned));
        return last;
    }

    /// Nothing happens if the call was dropped.
    void Run(std::uint64_t id)
    {
        const auto call = Take(id);
        if (call)
        {
            call.mapped()->Execute();
        }
    }

    void DropAll()
    {
        std::unordered_map<std::uint64_t, Command> dropped; // ends after the lock
        const CAutoLock guard(lock);
        dropped.swap(calls);
    }

private:
    std::unordered_map<std::uint64_t, Command>::node_type Take(std::uint64_t id)
    {
        const CAutoLock guard(lock);
        return calls.extract(id);
    }

    System::CCriticalSection lock;
    std::uint64_t last = 0;
    std::unordered_map<std::uint64_t, Command> calls;
};

COSXThreadInvoker::COSXThreadInvoker(CNativeRunLoop* loop_) : loop(loop_), calls(std::make_shared<CCalls>())
{
}

COSXThreadInvoker::~COSXThreadInvoker()
{
    calls->DropAll();
}

bool COSXThreadInvoker::IsTaken(Core::ICommand* command, bool owned) const
{
    if (loop == nullptr)
    {
        const Command refused(command, owned);
        return false;
    }
    return command != nullptr;
}

bool COSXThreadInvoker::Invoke(Core::ICommand* command, bool owned)
{
    if (!IsTaken(command, owned))
    {
        return false;
    }
    if (loop->IsCurrent())
    {
        const Command holder(command, owned);
        holder->Execute();
        return true;
    }
    System::CEvent done(false);
    Post(command, owned, &done);
    while (!done.IsSet()) // the event stands on this stack: a spurious wake must not end its life
    {
        done.Wait(-1);
    }
    return true;
}

bool COSXThreadInvoker::InvokeAsync(Core::ICommand* command, bool owned)
{
    if (!IsTaken(command, owned))
    {
        return false;
    }
    Post(command, owned, nullptr);
    return true;
}

void COSXThreadInvoker::Post(Core::ICommand* command, bool owned, System::CEvent* done)
{
    // Signals when the callback has run, and also when the run loop drops it.
    const auto signal = [](System::CEvent* event)
    {
        if (event != nullptr)
        {
            event->Set();
        }
    };
    std::shared_ptr<System::CEvent> end(done, signal);
    loop->Post([shared = calls, id = calls->Add(command, owned), end = std::move(end)] { shared->Run(id); });
}

} // namespace Mirel::GUI
