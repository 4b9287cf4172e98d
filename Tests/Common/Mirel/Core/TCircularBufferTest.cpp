#include "Mirel/Core/TCircularBuffer.h"

#include <gtest/gtest.h>
#include <numeric>
#include <span>
#include <vector>

using namespace Mirel::Core;

namespace
{

std::vector<int> Numbers(int first, std::size_t count)
{
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

int Newest(const TCircularBuffer<int>& ring, std::size_t age)
{
    return ring.GetPiece(age, 1)[0];
}

} // namespace

TEST(PowerOfTwo, APowerAboveOneStaysAndAnythingElseGoesToTheNext)
{
    EXPECT_EQ(RoundUpToPowerOfTwo(0), 1);
    EXPECT_EQ(RoundUpToPowerOfTwo(1), 1);
    EXPECT_EQ(RoundUpToPowerOfTwo(2), 2);
    EXPECT_EQ(RoundUpToPowerOfTwo(3), 4);
    EXPECT_EQ(RoundUpToPowerOfTwo(4), 4);
    EXPECT_EQ(RoundUpToPowerOfTwo(13230), 16384);
    EXPECT_EQ(RoundUpToPowerOfTwo(44100), 65536);
    EXPECT_EQ(RoundUpToPowerOfTwo(65536), 65536);
    EXPECT_EQ(RoundUpToPowerOfTwo(-5), 1);
}

TEST(TCircularBuffer, AgeOneIsTheNewestEntryAndTheSizeIsTheOldest)
{
    TCircularBuffer<int> ring;
    ring.SetSize(4);
    ring.Write(Numbers(1, 3));
    ring.Write(Numbers(4, 3));

    EXPECT_EQ(Newest(ring, 1), 6);
    EXPECT_EQ(Newest(ring, 4), 3);
}

TEST(TCircularBuffer, BlocksOfAnyLengthLeaveTheNewestEntriesWhereSingleWritesWouldPutThem)
{
    for (std::size_t length = 0; length < 14; ++length)
    {
        TCircularBuffer<int> whole;
        whole.SetSize(4);
        whole.Write(Numbers(1, 3));
        TCircularBuffer<int> single = whole;

        whole.Write(Numbers(4, length));
        for (const int number : Numbers(4, length))
        {
            single.Write(std::span(&number, 1));
        }

        for (std::size_t age = 1; age <= 4; ++age)
        {
            EXPECT_EQ(Newest(whole, age), Newest(single, age)) << length;
        }
        EXPECT_EQ(whole.GetPiece(4, 4).size(), single.GetPiece(4, 4).size()) << length;
    }
}

TEST(TCircularBuffer, PiecesAreContiguousAndEndAtTheEndOfTheRing)
{
    TCircularBuffer<int> ring;
    ring.SetSize(4);
    ring.Write(Numbers(1, 4));
    ring.Write(Numbers(5, 2));

    const auto first = ring.GetPiece(4, 4);
    ASSERT_EQ(first.size(), 2U);
    EXPECT_EQ(first[0], 3);
    EXPECT_EQ(first[1], 4);
    const auto second = ring.GetPiece(2, 2);
    ASSERT_EQ(second.size(), 2U);
    EXPECT_EQ(second[1], 6);
}

TEST(TCircularBuffer, RoomIsFilledInPlace)
{
    TCircularBuffer<int> ring;
    ring.SetSize(4);
    ring.Write(Numbers(1, 3));

    const auto room = ring.GetRoom(3);
    ASSERT_EQ(room.size(), 1U);
    room[0] = 9;
    ring.Advance(1);

    EXPECT_EQ(Newest(ring, 1), 9);
    EXPECT_EQ(Newest(ring, 2), 3);
}

TEST(TCircularBuffer, SameRoundedSizeKeepsTheEntriesAndAnotherDropsThem)
{
    TCircularBuffer<int> ring;
    ring.SetSize(8);
    ring.Write(Numbers(1, 8));

    ring.SetSize(5);
    EXPECT_EQ(ring.GetSize(), 8);
    EXPECT_EQ(Newest(ring, 1), 8);
    ring.SetSize(9);
    EXPECT_EQ(ring.GetSize(), 16);
    EXPECT_EQ(Newest(ring, 1), 0);
}
