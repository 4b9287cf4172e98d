#include "Mirel/Math/CSlidingCounts.h"

#include <bit>
#include <emmintrin.h>
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
    // The window reaches over the whole segments in it and a part of one at either end.
    segments.assign(std::bit_ceil((length >> segmentShift) + 2), CSegment{});
    segments.shrink_to_fit();
    Reset();
}

void CSlidingCounts::Reset()
{
    open = {};
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
    CSegment& closed = segments[SegmentPlace((counted >> segmentShift) - 1)];
    SumTurns(open.front().data(), used, closed.data());
    std::fill_n(open.begin(), used, CTurns{});
}

template <class Action>
void CSlidingCounts::ForEachWholeSegment(Action action) const
{
    for (std::uint64_t index = GetFirstWhole(); index < counted >> segmentShift; ++index)
    {
        action(segments[SegmentPlace(index)]);
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
    CCounters counts{};
    const auto add = [&counts, this](const CSegment& segment)
    {
        for (std::size_t i = 0; i < used; ++i)
        {
            counts[i] += segment[i];
        }
    };
    ForEachWholeSegment(add);
    CSegment opened;
    SumTurns(open.front().data(), used, opened.data());
    add(opened);
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
    std::uint32_t count = std::accumulate(open[number].begin(), open[number].end(), std::uint32_t{0});
    ForEachWholeSegment([&count, number](const CSegment& segment) { count += segment[number]; });
    ForEachUncountedPiece(
        [&count, number](std::span<const std::uint8_t> numbers)
        { count += static_cast<std::uint32_t>(std::count(numbers.begin(), numbers.end(), number)); });
    return count;
}

} // namespace Mirel::Math
