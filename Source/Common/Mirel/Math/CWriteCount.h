#pragma once

#include <atomic>
#include <cstdint>
#include <optional>

namespace Mirel::Math
{

/// How much has been written to an object that is written in sequence, so that an earlier copy of it can be
/// told what it lacks. The count is a part of the object and is copied with it.
///
/// A copy is an earlier state of its original for as long as it is not written to: the first Add on a copy
/// breaks the relation. Counts of different threads never mix: Restart is the only thing that they share, and
/// it neither locks nor allocates.
class CWriteCount
{
public:
    CWriteCount() { Restart(); }
    CWriteCount(const CWriteCount& other) { *this = other; }

    CWriteCount& operator=(const CWriteCount& other)
    {
        lineage = other.lineage;
        written = other.written;
        isCopy = true;
        return *this;
    }

    ~CWriteCount() = default;

    void Add(std::uint64_t count)
    {
        if (isCopy)
        {
            Restart();
        }
        written += count;
    }

    /// The object changed as a whole: no copy so far is an earlier state of it.
    void Restart()
    {
        static std::atomic<std::uint64_t> lineages{0};
        lineage = lineages.fetch_add(1, std::memory_order_relaxed);
        written = 0;
        isCopy = false;
    }

    /// What was written here since `earlier` was copied. Nothing if that is no earlier state of this.
    std::optional<std::uint64_t> GetWrittenSince(const CWriteCount& earlier) const
    {
        if (earlier.lineage != lineage || earlier.written > written)
        {
            return std::nullopt;
        }
        return written - earlier.written;
    }

private:
    std::uint64_t lineage = 0; ///< The same in all copies of one original.
    std::uint64_t written = 0;
    bool isCopy = false;
};

} // namespace Mirel::Math
