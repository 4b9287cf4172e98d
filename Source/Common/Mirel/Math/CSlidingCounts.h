#pragma once

#include "Mirel/Core/TCircularBuffer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Mirel::Math
{

/// Counts how often each of up to 256 numbers occurs among exactly the last so many that came in.
///
/// The stream is cut into segments. A complete segment is a small table of counts, which joins a running
/// total and at the same time replaces in it the oldest one there. What of the total is out of the window
/// again is taken off when somebody reads, and only the numbers of the one segment that is partly out are
/// counted anew. So a number costs one increment on its way in and next to nothing on its way out.
///
/// Numbers are counted in runs, some time after they were written: the processor then needn't wait for them.
/// A reader counts what is still waiting, so that every read is exact. Each number has several small counters
/// side by side that take turns, so that equal numbers in a row do not wait for one counter.
///
/// One thread. Only SetLength allocates.
class CSlidingCounts
{
public:
    static constexpr std::size_t maxNumbers = 256;
    using CCounters = std::array<std::uint32_t, maxNumbers>;

    /// The numbers to come are below numberCount, which is at most maxNumbers.
    explicit CSlidingCounts(int numberCount);

    /// Counts over the last `newLength` numbers, 0 or less for none; forgets all.
    void SetLength(int newLength);
    int GetLength() const { return static_cast<int>(length); }

    void Reset();

    /// Takes in `count` numbers, which produce(std::span<std::uint8_t>) writes in place, piece by piece.
    template <class Produce>
    void Add(std::size_t count, Produce produce)
    {
        while (length > 0 && count > 0)
        {
            const auto piece = history.GetRoom(std::min(count, SegmentSize()));
            produce(piece);
            history.Advance(piece.size());
            received += piece.size();
            if (received - counted >= runSize)
            {
                CountWaiting();
            }
            count -= piece.size();
        }
    }

    CCounters GetCounts() const;
    std::uint32_t GetCount(std::uint8_t number) const;

private:
    using CSegment = std::array<std::uint16_t, maxNumbers>;
    static constexpr std::size_t turns = 8;
    using CTurns = std::array<std::uint8_t, turns>;
    static constexpr int maxSegmentShift = 10; ///< A turn counts an eighth of a segment: it fits in a byte.
    static constexpr std::size_t maxRunSize = 512;

    std::size_t SegmentSize() const { return std::size_t{1} << segmentShift; }
    /// Complete segments in the total: at least all that are in the window.
    std::size_t TotalSize() const { return length >> segmentShift; }
    std::size_t SegmentPlace(std::uint64_t index) const { return index & (segments.size() - 1); }
    void CountWaiting();
    void CountInOpenSegment(std::span<const std::uint8_t> numbers);
    void CloseSegment();

    /// Of the numbers received, the first that is in the window.
    std::uint64_t GetOldest() const { return received - std::min<std::uint64_t>(received, length); }
    /// Of the segments, the first that is all in the window.
    std::uint64_t GetFirstWhole() const { return (GetOldest() + SegmentSize() - 1) >> segmentShift; }

    /// Calls action(segment) for the segments that are in the total, but no longer all in the window.
    template <class Action>
    void ForEachLeavingSegment(Action action) const;

    /// Calls action(numbers) for the contiguous pieces of all that is in the window, but in no table: the
    /// rest of the segment that is partly out, and what still waits to be counted.
    template <class Action>
    void ForEachUncountedPiece(Action action) const;

    std::size_t used; ///< Counters that are in use, rounded up to whole vectors.
    std::size_t length = 0;
    /// Segments hold 2^segmentShift numbers, at most half the window: whatever leaves it has been counted.
    int segmentShift = 0;
    std::size_t runSize = 1; ///< At most a segment.
    Core::TCircularBuffer<std::uint8_t> history;
    std::vector<CSegment> segments;        ///< A ring of the complete ones; empty ones before the first.
    std::array<CTurns, maxNumbers> open{}; ///< Of the segment that is filling up.
    CCounters total{};                     ///< Of the newest complete segments.
    std::uint64_t received = 0;            ///< Numbers since the reset.
    std::uint64_t counted = 0;             ///< Of these, the ones in the open segment or a complete one.
};

} // namespace Mirel::Math
