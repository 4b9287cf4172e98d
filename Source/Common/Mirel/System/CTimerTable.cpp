#include "Mirel/System/CTimerTable.h"

#include <algorithm>
#include <limits>

namespace Mirel::System
{

namespace
{
constexpr std::size_t minimumBuckets = 100;
constexpr std::uint64_t never = std::numeric_limits<std::uint64_t>::max();

constexpr double nanosecondsPerMillisecond = 1000000.0;

int WholeMilliseconds(double milliseconds)
{
    constexpr int longest = std::numeric_limits<int>::max();
    return milliseconds < static_cast<double>(longest) ? static_cast<int>(milliseconds) : longest;
}
} // namespace

CTimerTable::SRecord::SRecord(const ITickSource& source, Core::ICommand* command_, int periodMs)
    : watch(source),
      periodTicks(source.GetRate().GetTicks(periodMs)),
      command(command_)
{
    watch.Start();
}

CTimerTable::CTimerTable(const ITickSource& source_) : source(source_), table(minimumBuckets) {}

void CTimerTable::Add(int periodMs, Core::ICommand* command)
{
    auto record = std::make_shared<SRecord>(source, command, periodMs);
    const std::lock_guard guard(mutex);
    const auto [place, inserted] = table.try_emplace(command, record);
    if (!inserted)
    {
        SRecord& known = *place->second;
        known.periodTicks = record->periodTicks;
        known.watch.Start();
        RemoveFromDue(place->second);
    }
}

void CTimerTable::Remove(Core::ICommand* command)
{
    std::unique_lock guard(mutex);
    const auto place = table.find(command);
    if (place == table.end())
    {
        return;
    }
    const Record record = place->second;
    table.erase(place);
    RemoveFromDue(record);
    // The lock is free meanwhile: the command that is waited for may add and remove timers itself.
    executed.wait(guard,
                  [&] { return !record->executing || record->executor == std::this_thread::get_id(); });
}

bool CTimerTable::RunFirstDue()
{
    Record record;
    {
        const std::lock_guard guard(mutex);
        if (due.empty())
        {
            return false;
        }
        record = std::move(due.front());
        due.erase(due.begin());
        record->executing = true;
        record->executor = std::this_thread::get_id();
        record->watch.Start();
    }
    record->command->Execute();
    {
        const std::lock_guard guard(mutex);
        record->executing = false;
    }
    executed.notify_all();
    return true;
}

int CTimerTable::Scan()
{
    CPreciseCPUWatch scan(source);
    scan.Start();
    restNanoseconds = 0;
    const std::lock_guard guard(mutex);
    std::uint64_t soonest = never;
    for (auto& [command, record] : table)
    {
        std::int64_t remaining =
            static_cast<std::int64_t>(record->periodTicks - record->watch.GetElapsedTicks());
        if (remaining <= 0)
        {
            record->watch.Reset();
            due.push_back(record);
            remaining = 0;
        }
        soonest = std::min(soonest, scan.GetElapsedTicks() + static_cast<std::uint64_t>(remaining));
    }
    if (!due.empty())
    {
        return 0;
    }
    if (soonest == never)
    {
        return -1;
    }
    const std::uint64_t spent = scan.GetElapsedTicks();
    const double milliseconds = source.GetRate().GetMilliseconds(soonest > spent ? soonest - spent : 0);
    const int whole = WholeMilliseconds(milliseconds);
    const double rest = std::min(milliseconds - whole, 1.0) * nanosecondsPerMillisecond;
    restNanoseconds = static_cast<int>(rest);
    return whole;
}

void CTimerTable::RemoveFromDue(const Record& record)
{
    std::erase(due, record);
}

} // namespace Mirel::System
