#pragma once

#include "Mirel/System/CMonotonicTickSource.h"
#include "Mirel/System/IIdleListener.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Mirel::GUI
{

/// The run loop of the GUI thread: timers, calls posted by other threads and descriptors that become
/// readable, all behind one descriptor. A stand-alone program sits in RunUntil, or polls the descriptor and
/// calls Pump when it is readable; a host that owns the thread calls OnIdle from time to time.
///
/// Belongs to the thread that made it; only Post may be called on another. Callbacks may add and remove
/// anything, pump and run the loop themselves. A timer whose callback is under way does not fire again inside
/// it.
class CNativeRunLoop : public virtual System::IIdleListener
{
public:
    using Callback = std::function<void()>;
    using Predicate = std::function<bool()>;
    using TimerId = std::uint64_t; ///< never 0

    /// Timers run by the given counter, which must outlive the loop.
    explicit CNativeRunLoop(const System::ITickSource& source_ = System::CMonotonicTickSource::GetInstance());
    CNativeRunLoop(const CNativeRunLoop&) = delete;
    CNativeRunLoop& operator=(const CNativeRunLoop&) = delete;

    /// Drops all that is left, posted calls included, without running it.
    ~CNativeRunLoop() override;

    /// Readable whenever there is something to do. For poll and its kin; owned by the loop.
    int GetDescriptor() const { return epollDescriptor; }

    bool IsCurrent() const { return std::this_thread::get_id() == owner; }

    /// A repeating timer: fires first one period (1 ms at least) from now, then at multiples of it. A timer
    /// that comes late fires once for all that it missed.
    TimerId AddTimer(int periodMs, Callback callback);

    /// An unknown id does nothing.
    void RemoveTimer(TimerId id);

    /// Calls back for as long as the descriptor is readable or broken. Replaces an earlier callback of the
    /// same descriptor. The descriptor is not owned; remove it before closing it. False if it cannot be
    /// watched.
    ///
    /// isPending, if given, is asked before the loop sleeps: true if there is something to do although the
    /// descriptor may not be readable, because what came in was read already and lies in a queue. It must not
    /// touch the loop.
    bool AddDescriptor(int descriptor, Callback callback, Predicate isPending = nullptr);
    void RemoveDescriptor(int descriptor);

    /// Any thread. The call runs on the loop's thread in a later pass; calls run in the order of posting.
    void Post(Callback call);

    /// One pass: waits for something to do, for so many milliseconds at most, without bound if negative; runs
    /// what was posted by then, the timers that are due and the callbacks of readable descriptors. True if
    /// anything ran.
    bool Pump(int timeoutMs);

    /// Passes without waiting, for a host that calls when it has nothing else to do.
    void OnIdle() override { Pump(0); }

    /// Makes passes until finished() holds after one.
    void RunUntil(const std::function<bool()>& finished);

private:
    struct STimer
    {
        std::uint64_t deadline;
        std::uint64_t period;
        Callback callback;
        bool firing = false;
    };

    struct SDescriptor
    {
        Callback callback;
        Predicate isPending;
    };

    bool Watch(int descriptor) const;
    std::vector<int> Wait(int timeoutMs) const;
    void Wake() const;
    std::vector<int> FindPending() const;
    bool RunPosted();
    bool RunDueTimers();
    void Fire(STimer& timer);
    bool RunReady(const std::vector<int>& ready, std::uint64_t pass);
    void Arm() const;

    const System::ITickSource& source;
    std::thread::id owner = std::this_thread::get_id();
    int epollDescriptor;
    int timerDescriptor;
    int wakeDescriptor;
    std::uint64_t passes = 0;
    TimerId lastTimer = 0;
    std::map<TimerId, std::shared_ptr<STimer>> timers;
    std::map<int, std::shared_ptr<SDescriptor>> descriptors;
    std::mutex postedMutex;
    std::deque<Callback> posted;
};

} // namespace Mirel::GUI
