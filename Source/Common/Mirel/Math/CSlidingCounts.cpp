#include "Mirel/Math/CSlidingCounts.h"

#include <bit>

namespace Mirel::Math
{

CSlidingCounts::CSlidingCounts(int numberCount)
    : used(std::clamp<std::size_t>((static_cast<std::size_t>(numberCount) + 15) / 16 * 16, 16, maxNumbers))
{
}

void CSlidingCounts::SetLength(int newLength)
{
    length = static_cast<std::size_t>(std::max(newLength, 0));
    history.SetSize(newLength);
    segmentShift = std::clamp(static_cast<int>(std::bit_width(length)) - 2, 0, maxSegmentShift);
    runSize = std::min(SegmentSize(), maxRunSize);
    // The window reaches over the whole segments in it and a part of one at either end.
    segments.assign(std::bit_ceil((length >> segmentShift) + 2), CSegment{});
    segments.shrink_to_fit();
    Reset();
}

void CSlidingCounts::Reset()
{
    open = {};
    total = {};
    received = 0;
    counted = 0;
    firstWhole = 0;
}

void CSlidingCounts::CountWaiting()
{
    while (counted < received)
    {
        const std::size_t room = SegmentSize() - (counted & (SegmentSize() - 1));
        const auto piece =
            history.GetPiece(received - counted, std::min<std::size_t>(received - counted, room));
        CountInOpenSegment(piece);
        counted += piece.size();
        if (piece.size() == room)
        {
            CloseSegment();
        }
    }
}

void CSlidingCounts::CountInOpenSegment(std::span<const std::uint8_t> numbers)
{
    const std::uint8_t* number = numbers.data();
    std::size_t left = numbers.size();
    for (; left >= turns; left -= turns, number += turns)
    {
        for (std::size_t turn = 0; turn < turns; ++turn)
        {
            ++open[turn][number[turn]];
        }
    }
    for (; left > 0; --left, ++number)
    {
        ++open[0][*number];
    }
}

void CSlidingCounts::CloseSegment()
{
    CSegment& closed = GetSegment((counted >> segmentShift) - 1);
    std::copy_n(open[0].begin(), used, closed.begin());
    for (std::size_t turn = 1; turn < turns; ++turn)
    {
        for (std::size_t i = 0; i < used; ++i)
        {
            closed[i] = static_cast<std::uint16_t>(closed[i] + open[turn][i]);
        }
    }
    for (std::size_t i = 0; i < used; ++i)
    {
        total[i] += closed[i];
    }
    for (CSegment& turn : open)
    {
        std::fill_n(turn.begin(), used, std::uint16_t{0});
    }
}

void CSlidingCounts::DropFirstSegment()
{
    const CSegment& leaving = GetSegment(firstWhole);
    for (std::size_t i = 0; i < used; ++i)
    {
        total[i] -= leaving[i];
    }
    ++firstWhole;
}

template <class Action>
void CSlidingCounts::ForEachUncountedPiece(Action action) const
{
    const auto forRange = [this, action](std::uint64_t begin, std::uint64_t end)
    {
        while (begin < end)
        {
            const auto piece = history.GetPiece(received - begin, end - begin);
            action(piece);
            begin += piece.size();
        }
    };
    const std::uint64_t oldest = received - std::min<std::uint64_t>(received, length);
    forRange(oldest, firstWhole << segmentShift);
    forRange(counted, received);
}

std::uint32_t CSlidingCounts::GetOpenCount(std::size_t number) const
{
    std::uint32_t count = 0;
    for (const CSegment& turn : open)
    {
        count += turn[number];
    }
    return count;
}

CSlidingCounts::CCounters CSlidingCounts::GetCounts() const
{
    CCounters counts = total;
    for (std::size_t i = 0; i < used; ++i)
    {
        counts[i] += GetOpenCount(i);
    }
    ForEachUncountedPiece(
        [&counts](std::span<const std::uint8_t> numbers)
        {
            for (const std::uint8_t number : numbers)
            {
                ++counts[number];
            }
        });
    return counts;
}

std::uint32_t CSlidingCounts::GetCount(std::uint8_t number) const
{
    std::uint32_t count = total[number] + GetOpenCount(number);
    ForEachUncountedPiece(
        [&count, number](std::span<const std::uint8_t> numbers)
        { count += static_cast<std::uint32_t>(std::count(numbers.begin(), numbers.end(), number)); });
    return count;
}

} // namespace Mirel::Math
