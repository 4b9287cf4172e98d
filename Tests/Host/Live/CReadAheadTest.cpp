#include "Host/Live/CReadAhead.h"

#include "Host/Audio/CBuffers.h"
#include "Host/Live/CountingSource.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace Host
{
namespace
{

constexpr int Block = 500;

/// Takes until so many frames came, or the reader has finished; the left channel of them.
std::vector<float> TakeAll(CReadAhead& reader, std::size_t most)
{
    const CBuffers buffers(2, Block);
    std::vector<float> all;
    while (all.size() < most && !reader.IsFinished())
    {
        const int count = reader.Take(buffers.Get(), Block);
        for (int i = 0; i < count; ++i)
        {
            EXPECT_EQ(buffers.Get()[1][i], -buffers.Get()[0][i]);
            all.push_back(buffers.Get()[0][i]);
        }
        if (count == 0)
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    return all;
}

TEST(CReadAhead, GivesEveryFrameOnceInOrderAndThenIsFinished)
{
    Tests::CCountingSource source(300'000); // more than the reader holds
    CReadAhead reader(source, 300'000, false);
    const std::vector<float> all = TakeAll(reader, 400'000);
    ASSERT_EQ(all.size(), 300'000U);
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        ASSERT_EQ(all[i], static_cast<float>(i + 1));
    }
    EXPECT_TRUE(reader.IsFinished());
}

TEST(CReadAhead, StopsAfterTheFramesAskedFor)
{
    Tests::CCountingSource source(10'000);
    CReadAhead reader(source, 1234, false);
    EXPECT_EQ(TakeAll(reader, 20'000).size(), 1234U);
}

TEST(CReadAhead, LoopsFromTheStartOfTheSource)
{
    Tests::CCountingSource source(1000);
    source.Skip(600);
    CReadAhead reader(source, 400, true);
    const std::vector<float> all = TakeAll(reader, 2500);
    ASSERT_GE(all.size(), 2500U);
    for (std::size_t i = 0; i < 2500; ++i)
    {
        ASSERT_EQ(all[i], static_cast<float>((i + 600) % 1000 + 1)) << i;
    }
}

TEST(CReadAhead, AnEmptySourceFinishesEvenIfItLoops)
{
    Tests::CCountingSource source(0);
    CReadAhead reader(source, 0, true);
    EXPECT_TRUE(TakeAll(reader, 10).empty());
}

} // namespace
} // namespace Host
