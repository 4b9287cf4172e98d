#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/System/CPreciseCPUWatch.h"

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

namespace Mirel::System
{

/// The timers of a message loop. One thread scans and runs; any thread adds and removes. Commands run with no
/// lock held. A period counts from the start of the last run, and a tick that comes late is not made up.
class CTimerTable
{
public:
    /// The source must outlive the table.
    explicit CTimerTable(const ITickSource& source_);
    CTimerTable(const CTimerTable&) = delete;
    CTimerTable& operator=(const CTimerTable&) = delete;

    /// Starts a timer, or gives the command's timer another period and starts that from now. A period of 0 or
    /// less is due at every scan.
    void Add(int periodMs, Core::ICommand* command);

    /// If the command is being executed, waits for its end, unless it is the command itself that calls.
    void Remove(Core::ICommand* command);

    /// Runs the first of the timers that the last scan found due, and says whether there was one.
    bool RunFirstDue();

    /// Finds the timers that are due. Returns the time until the next one is, in whole milliseconds, rounded
    /// down; -1 without timers.
    int Scan();

    /// What the rounding of the last scan took off, in nanoseconds. The scanning thread only.
    int GetRestNanoseconds() const { return restNanoseconds; }

private:
    /// A stopwatch with a period. Stands still from the scan that finds it due until its command runs.
    struct SRecord
    {
        SRecord(const ITickSource& source, Core::ICommand* command_, int periodMs);

        CPreciseCPUWatch watch;
        std::uint64_t periodTicks;
        Core::ICommand* command;
        bool executing = false;
        std::thread::id executor;
    };
    using Record = std::shared_ptr<SRecord>;

    void RemoveFromDue(const Record& record);

    const ITickSource& source;
    int restNanoseconds = 0;
    std::mutex mutex; ///< over all that follows
    std::condition_variable executed;
    std::unordered_map<Core::ICommand*, Record> table;
    std::vector<Record> due; ///< keeps its capacity, so that ticks do not allocate
};

} // namespace Mirel::System
