#include "Mirel/Math/CSlidingCounts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Math;

namespace
{

void Add(CSlidingCounts& counts, const std::vector<std::uint8_t>& numbers)
{
    std::size_t done = 0;
    counts.Add(numbers.size(),
               [&](std::span<std::uint8_t> target)
               {
                   std::copy_n(numbers.begin() + static_cast<std::ptrdiff_t>(done), target.size(),
                               target.begin());
                   done += target.size();
               });
}

std::uint32_t Recount(const std::vector<std::uint8_t>& all, int length, std::uint8_t number)
{
    const auto window = std::min(all.size(), static_cast<std::size_t>(length));
    return static_cast<std::uint32_t>(
        std::count(all.end() - static_cast<std::ptrdiff_t>(window), all.end(), number));
}

} // namespace

TEST(CSlidingCounts, WithoutALengthNothingCounts)
{
    CSlidingCounts counts(3);
    Add(counts, {1, 1, 2});
    counts.SetLength(-1);
    Add(counts, {1, 1, 2});

    EXPECT_EQ(counts.GetCount(1), 0U);
}

TEST(CSlidingCounts, ResetForgetsAll)
{
    CSlidingCounts counts(3);
    counts.SetLength(4);
    Add(counts, {1, 1, 2});

    counts.Reset();
    Add(counts, {2});

    EXPECT_EQ(counts.GetCount(1), 0U);
    EXPECT_EQ(counts.GetCount(2), 1U);
}

TEST(CSlidingCounts, EqualNumbersFillAWindowOfAnyLengthForAnyCut)
{
    for (const int length : {1, 2, 7, 1024, 2048, 2049, 44100})
    {
        for (const std::size_t cut : {1U, 9U, 511U, 512U, 513U, 5000U})
        {
            CSlidingCounts counts(256);
            counts.SetLength(length);
            const std::vector<std::uint8_t> equal(cut, 255);
            for (std::size_t done = 0; done < static_cast<std::size_t>(length) + 3000; done += cut)
            {
                Add(counts, equal);
            }
            EXPECT_EQ(counts.GetCount(255), static_cast<std::uint32_t>(length)) << cut;
            EXPECT_EQ(counts.GetCounts()[255], static_cast<std::uint32_t>(length)) << cut;
        }
    }
}

RC_GTEST_PROP(CSlidingCounts, CountsExactlyTheLastSoManyNumbersAtEveryMoment, ())
{
    constexpr int kinds = 5;
    const int length = *rc::gen::oneOf(rc::gen::inRange(1, 40), rc::gen::inRange(1, 9000));
    CSlidingCounts counts(kinds);
    counts.SetLength(length);
    std::vector<std::uint8_t> all;
    std::uint32_t state = *rc::gen::arbitrary<std::uint32_t>();

    for (int block = 0; block < 12; ++block)
    {
        const int size = *rc::gen::oneOf(rc::gen::inRange(0, 20), rc::gen::inRange(0, 5000));
        std::vector<std::uint8_t> numbers;
        for (int i = 0; i < size; ++i)
        {
            state = state * 1664525U + 1013904223U;
            numbers.push_back(static_cast<std::uint8_t>((state >> 24) % kinds));
        }
        Add(counts, numbers);
        all.insert(all.end(), numbers.begin(), numbers.end());

        const auto table = counts.GetCounts();
        for (std::uint8_t number = 0; number < kinds; ++number)
        {
            RC_ASSERT(table[number] == Recount(all, length, number));
            RC_ASSERT(counts.GetCount(number) == table[number]);
        }
    }
}
