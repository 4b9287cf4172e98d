#pragma once

#include <atomic>
#include <thread>

namespace MirelExt::AAXPlugin
{

/// Tells whether the calling thread is the one that runs an instance's process procedure right now. A thread-
/// local variable would not do: in a module loaded late its first use on a thread allocates.
class CAudioThreadMark
{
public:
    bool IsOwn() const { return thread.load(std::memory_order_relaxed) == std::this_thread::get_id(); }

    /// Marks the thread for as long as it lives.
    class CScope
    {
    public:
        explicit CScope(CAudioThreadMark& mark_) : mark(mark_)
        {
            mark.thread.store(std::this_thread::get_id(), std::memory_order_relaxed);
        }
        CScope(const CScope&) = delete;
        CScope& operator=(const CScope&) = delete;
        ~CScope() { mark.thread.store(std::thread::id(), std::memory_order_relaxed); }

    private:
        CAudioThreadMark& mark;
    };

private:
    std::atomic<std::thread::id> thread;
};

} // namespace MirelExt::AAXPlugin
