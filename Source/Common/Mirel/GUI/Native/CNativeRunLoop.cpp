#include "Mirel/GUI/Native/CNativeRunLoop.h"

#include <algorithm>
#include <array>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace Mirel::GUI
{

namespace
{
constexpr std::size_t eventsPerPass = 16;
constexpr double nanosecondsPerMillisecond = 1000000.0;
constexpr std::int64_t nanosecondsPerSecond = 1000000000;

/// Takes the count out of a timer or wake descriptor, which makes it unreadable.
void Drain(int descriptor)
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t size = read(descriptor, &count, sizeof(count));
}
} // namespace

CNativeRunLoop::CNativeRunLoop(const System::ITickSource& source_)
    : source(source_),
      epollDescriptor(epoll_create1(EPOLL_CLOEXEC)),
      timerDescriptor(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)),
      wakeDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    Watch(timerDescriptor);
    Watch(wakeDescriptor);
}

CNativeRunLoop::~CNativeRunLoop()
{
    std::deque<Callback> dropped;             // ends after the lock
    const std::lock_guard guard(postedMutex); // after the last thread that posted
    dropped.swap(posted);
    for (const int descriptor : {wakeDescriptor, timerDescriptor, epollDescriptor})
    {
        close(descriptor);
    }
}

bool CNativeRunLoop::Watch(int descriptor) const
{
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = descriptor;
    return epoll_ctl(epollDescriptor, EPOLL_CTL_ADD, descriptor, &event) == 0;
}

CNativeRunLoop::TimerId CNativeRunLoop::AddTimer(int periodMs, Callback callback)
{
    const std::uint64_t period = std::max<std::uint64_t>(source.GetRate().GetTicks(std::max(periodMs, 1)), 1);
    timers.emplace(++lastTimer,
                   std::make_shared<STimer>(STimer{source.GetTicks() + period, period, std::move(callback)}));
    Arm();
    return lastTimer;
}

void CNativeRunLoop::RemoveTimer(TimerId id)
{
    timers.erase(id);
    Arm();
}

bool CNativeRunLoop::AddDescriptor(int descriptor, Callback callback, Predicate isPending)
{
    auto shared = std::make_shared<SDescriptor>(SDescriptor{std::move(callback), std::move(isPending)});
    const auto known = descriptors.find(descriptor);
    if (known != descriptors.end())
    {
        known->second = std::move(shared);
        return true;
    }
    if (!Watch(descriptor))
    {
        return false;
    }
    descriptors.emplace(descriptor, std::move(shared));
    return true;
}

void CNativeRunLoop::RemoveDescriptor(int descriptor)
{
    if (descriptors.erase(descriptor) != 0)
    {
        epoll_ctl(epollDescriptor, EPOLL_CTL_DEL, descriptor, nullptr);
    }
}

void CNativeRunLoop::Post(Callback call)
{
    const std::lock_guard guard(postedMutex);
    posted.push_back(std::move(call));
    Wake();
}

void CNativeRunLoop::Wake() const
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t size = write(wakeDescriptor, &one, sizeof(one));
}

std::vector<int> CNativeRunLoop::FindPending() const
{
    std::vector<int> pending;
    for (const auto& [descriptor, entry] : descriptors)
    {
        if (entry->isPending && entry->isPending())
        {
            pending.push_back(descriptor);
        }
    }
    return pending;
}

std::vector<int> CNativeRunLoop::Wait(int timeoutMs) const
{
    std::vector<int> ready = FindPending();
    std::array<epoll_event, eventsPerPass> events{};
    const int count = epoll_wait(epollDescriptor, events.data(), static_cast<int>(events.size()),
                                 ready.empty() ? std::max(timeoutMs, -1) : 0);
    for (int i = 0; i < count; ++i)
    {
        const int descriptor = events[static_cast<std::size_t>(i)].data.fd;
        if (descriptor == timerDescriptor || descriptor == wakeDescriptor)
        {
            Drain(descriptor);
        }
        else if (std::find(ready.begin(), ready.end(), descriptor) == ready.end())
        {
            ready.push_back(descriptor);
        }
    }
    return ready;
}

bool CNativeRunLoop::Pump(int timeoutMs)
{
    const std::vector<int> ready = Wait(timeoutMs);
    const std::uint64_t pass = ++passes;
    const bool ranPosted = RunPosted();
    const bool ranTimers = RunDueTimers();
    const bool ranReady = RunReady(ready, pass);
    Arm();
    if (!FindPending().empty())
    {
        Wake(); // for whoever polls the loop's own descriptor
    }
    return ranPosted || ranTimers || ranReady;
}

void CNativeRunLoop::RunUntil(const std::function<bool()>& finished)
{
    do
    {
        Pump(-1);
    } while (!finished());
}

bool CNativeRunLoop::RunPosted()
{
    std::unique_lock guard(postedMutex);
    const std::size_t count = posted.size();
    // One by one from the queue: a call that runs the loop itself finds the others there.
    for (std::size_t left = count; left > 0 && !posted.empty(); --left)
    {
        {
            const Callback call = std::move(posted.front());
            posted.pop_front();
            guard.unlock();
            call();
        }
        guard.lock();
    }
    if (!posted.empty())
    {
        Wake();
    }
    return count != 0;
}

bool CNativeRunLoop::RunDueTimers()
{
    const std::uint64_t now = source.GetTicks();
    std::vector<std::pair<std::uint64_t, TimerId>> due;
    for (const auto& [id, timer] : timers)
    {
        if (!timer->firing && timer->deadline <= now)
        {
            due.emplace_back(timer->deadline, id);
        }
    }
    std::sort(due.begin(), due.end());
    bool ran = false;
    for (const auto& [deadline, id] : due)
    {
        // A callback before this one may have removed it, or run the loop and fired it.
        const auto place = timers.find(id);
        if (place != timers.end() && !place->second->firing && place->second->deadline == deadline)
        {
            const std::shared_ptr<STimer> timer = place->second;
            Fire(*timer);
            ran = true;
        }
    }
    return ran;
}

void CNativeRunLoop::Fire(STimer& timer)
{
    timer.firing = true;
    timer.callback();
    timer.firing = false;
    const std::uint64_t late = source.GetTicks() - timer.deadline;
    timer.deadline += (late / timer.period + 1) * timer.period;
}

bool CNativeRunLoop::RunReady(const std::vector<int>& ready, std::uint64_t pass)
{
    bool ran = false;
    for (const int descriptor : ready)
    {
        // A callback that ran the loop itself has made the rest of this list stale; the next pass sees it
        // anew.
        if (pass != passes)
        {
            break;
        }
        const auto place = descriptors.find(descriptor);
        if (place != descriptors.end())
        {
            const std::shared_ptr<SDescriptor> entry = place->second;
            entry->callback();
            ran = true;
        }
    }
    return ran;
}

void CNativeRunLoop::Arm() const
{
    bool any = false;
    std::uint64_t soonest = 0;
    for (const auto& [id, timer] : timers)
    {
        if (!timer->firing && (!any || timer->deadline < soonest))
        {
            soonest = timer->deadline;
            any = true;
        }
    }
    itimerspec setting{};
    if (any)
    {
        const std::uint64_t now = source.GetTicks();
        const double milliseconds = source.GetRate().GetMilliseconds(soonest > now ? soonest - now : 0);
        // All zero would switch the timer off.
        const auto wait =
            std::max<std::int64_t>(static_cast<std::int64_t>(milliseconds * nanosecondsPerMillisecond), 1);
        setting.it_value.tv_sec = wait / nanosecondsPerSecond;
        setting.it_value.tv_nsec = wait % nanosecondsPerSecond;
    }
    timerfd_settime(timerDescriptor, 0, &setting, nullptr);
}

} // namespace Mirel::GUI
