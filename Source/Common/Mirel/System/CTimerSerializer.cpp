#include "Mirel/System/CTimerSerializer.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace Mirel::System
{

namespace
{
constexpr int grainMs = 10;

int RoundedUp(int periodMs)
{
    constexpr int longest = std::numeric_limits<int>::max() / grainMs * grainMs;
    if (periodMs < grainMs)
    {
        return grainMs;
    }
    return periodMs > longest ? longest : (periodMs + grainMs - 1) / grainMs * grainMs;
}

int CommonPeriod(int first, int second)
{
    const int divisor = std::gcd(first, second);
    return divisor == 0 ? grainMs : divisor;
}
} // namespace

CTimerSerializer::~CTimerSerializer()
{
    if (enabled && basePeriodMs != -1)
    {
        Core::ICommand* self = this;
        timer->RemoveTimer(self, false);
    }
}

void CTimerSerializer::AddTimer(int periodMs, Core::ICommand* command)
{
    if (command == nullptr)
    {
        return;
    }
    std::unique_lock guard(mutex);
    const int rounded = RoundedUp(periodMs);
    entries.push_back(std::make_shared<SEntry>(SEntry{command, 0, rounded, 0, {}}));
    const int old = basePeriodMs;
    basePeriodMs = old == -1 ? rounded : CommonPeriod(old, rounded);
    const bool restart = basePeriodMs != old && enabled;
    guard.unlock();
    if (restart)
    {
        Restart();
    }
}

void CTimerSerializer::RemoveTimer(Core::ICommand*& command, bool destroyCommand)
{
    if (command != nullptr)
    {
        bool removed = RemoveFirst(command);
        while (removed && destroyCommand && RemoveFirst(command))
        {
        }
        if (removed)
        {
            UpdateBasePeriod();
        }
    }
    DestroyTimerCommand(command, destroyCommand);
}

bool CTimerSerializer::RemoveFirst(const Core::ICommand* command)
{
    std::unique_lock guard(mutex);
    const auto place = std::find_if(entries.begin(), entries.end(),
                                    [&](const auto& entry) { return entry->command == command; });
    if (place == entries.end())
    {
        return false;
    }
    const std::shared_ptr<SEntry> entry = *place;
    entry->command = nullptr;
    if (ticksUnderWay == 0)
    {
        entries.erase(place);
    }
    executed.wait(guard,
                  [&] { return entry->executions == 0 || entry->executor == std::this_thread::get_id(); });
    return true;
}

void CTimerSerializer::UpdateBasePeriod()
{
    std::unique_lock guard(mutex);
    int common = 0;
    for (const auto& entry : entries)
    {
        common = entry->command == nullptr ? common : std::gcd(common, entry->periodMs);
    }
    const int old = basePeriodMs;
    basePeriodMs = common == 0 ? -1 : std::max(common, grainMs);
    const bool empty = basePeriodMs == -1;
    const bool restart = !empty && basePeriodMs != old && enabled;
    guard.unlock();
    if (empty)
    {
        Register();
    }
    else if (restart)
    {
        Restart();
    }
}

void CTimerSerializer::Restart()
{
    Enable(false);
    Enable(true);
}

void CTimerSerializer::Enable(bool enable)
{
    {
        const std::lock_guard guard(mutex);
        if (enabled == enable)
        {
            return;
        }
        enabled = enable;
    }
    Register();
    enableChanged.Notify();
}

bool CTimerSerializer::IsEnabled() const
{
    const std::lock_guard guard(mutex);
    return enabled;
}

// The provider is called without the lock, since it may wait for a tick, and by one thread at a time: a
// second one, which may be that very tick, leaves its change to the first.
void CTimerSerializer::Register()
{
    std::unique_lock guard(mutex);
    registerAgain = true;
    if (registering)
    {
        return;
    }
    registering = true;
    while (registerAgain)
    {
        registerAgain = false;
        const int period = enabled ? basePeriodMs : -1;
        guard.unlock();
        Core::ICommand* self = this;
        if (period == -1)
        {
            timer->RemoveTimer(self, false);
        }
        else
        {
            timer->AddTimer(period, self);
        }
        guard.lock();
    }
    registering = false;
}

void CTimerSerializer::Execute()
{
    std::unique_lock guard(mutex);
    const int passedMs = basePeriodMs;
    if (passedMs == -1)
    {
        return;
    }
    ++ticksUnderWay;
    auto place = entries.begin();
    for (std::size_t left = entries.size(); left > 0; --left, ++place)
    {
        SEntry& entry = **place;
        entry.elapsedMs += passedMs;
        if (entry.command == nullptr || entry.elapsedMs < entry.periodMs)
        {
            continue;
        }
        entry.elapsedMs = 0;
        Core::ICommand* command = entry.command;
        ++entry.executions;
        entry.executor = std::this_thread::get_id();
        guard.unlock();
        command->Execute();
        guard.lock();
        --entry.executions;
        executed.notify_all();
    }
    if (--ticksUnderWay == 0)
    {
        std::erase_if(entries, [](const auto& entry) { return entry->command == nullptr; });
    }
}

void CTimerSerializer::ResetElapsedTimes()
{
    const std::lock_guard guard(mutex);
    for (const auto& entry : entries)
    {
        entry->elapsedMs = 0;
    }
}

int CTimerSerializer::GetBasePeriod() const
{
    const std::lock_guard guard(mutex);
    return basePeriodMs;
}

} // namespace Mirel::System
