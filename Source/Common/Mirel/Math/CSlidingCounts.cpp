#include "Mirel/Math/CSlidingCounts.h"

#include <bit>
#include <emmintrin.h>
#include <functional>
#include <numeric>

namespace Mirel::Math
{

namespace
{

__m128i SumTwoNumbers(const std::uint8_t* counters)
{
    const __m128i both = _mm_loadu_si128(reinterpret_cast<const __m128i*>(counters));
    return _mm_sad_epu8(both, _mm_setzero_si128());
}

/// The sums of the eight counters of each number, eight numbers at a time.
void SumTurns(const std::uint8_t* counters, std::size_t numbers, std::uint16_t* sums)
{
    for (std::size_t i = 0; i < numbers; i += 8, counters += 64)
    {
        const __m128i first = _mm_packs_epi32(SumTwoNumbers(counters), SumTwoNumbers(counters + 16));
        const __m128i second = _mm_packs_epi32(SumTwoNumbers(counters + 32), SumTwoNumbers(counters + 48));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(sums + i), _mm_packs_epi32(first, second));
    }
}

} // namespace

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
    segments.assign(std::bit_ceil(TotalSize() + 1), CSegment{});
    segments.shrink_to_fit();
    Reset();
}

void CSlidingCounts::Reset()
{
    std::fill(segments.begin(), segments.end(), CSegment{});
    open = {};
    total = {};
    received = 0;
    counted = 0;
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
            ++open[number[turn]][turn];
        }
    }
    for (std::size_t turn = 0; turn < left; ++turn)
    {
        ++open[number[turn]][turn];
    }
}

void CSlidingCounts::CloseSegment()
{
    const std::uint64_t index = (counted >> segmentShift) - 1;
    CSegment& closed = segments[SegmentPlace(index)];
    const CSegment& replaced = segments[SegmentPlace(index - TotalSize())];
    SumTurns(open.front().data(), used, closed.data());
    for (std::size_t i = 0; i < used; ++i)
    {
        total[i] += static_cast<std::uint32_t>(closed[i] - replaced[i]);
    }
    std::fill_n(open.begin(), used, CTurns{});
}

template <class Action>
void CSlidingCounts::ForEachLeavingSegment(Action action) const
{
    const std::uint64_t complete = counted >> segmentShift;
    for (std::uint64_t i = complete - std::min<std::uint64_t>(complete, TotalSize()); i < GetFirstWhole();
         ++i)
    {
        action(segments[SegmentPlace(i)]);
    }
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
    forRange(GetOldest(), GetFirstWhole() << segmentShift);
    forRange(counted, received);
}

CSlidingCounts::CCounters CSlidingCounts::GetCounts() const
{
    CCounters counts = total;
    ForEachLeavingSegment(
        [&counts](const CSegment& segment)
        { std::transform(counts.begin(), counts.end(), segment.begin(), counts.begin(), std::minus<>()); });
    CSegment opened{};
    SumTurns(open.front().data(), used, opened.data());
    std::transform(counts.begin(), counts.end(), opened.begin(), counts.begin(), std::plus<>());
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
    std::uint32_t count = std::accumulate(open[number].begin(), open[number].end(), total[number]);
    ForEachLeavingSegment([&count, number](const CSegment& segment) { count -= segment[number]; });
    ForEachUncountedPiece(
        [&count, number](std::span<const std::uint8_t> numbers)
        { count += static_cast<std::uint32_t>(std::count(numbers.begin(), numbers.end(), number)); });
    return count;
}

} // namespace Mirel::Math
