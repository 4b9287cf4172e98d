#include "Host/Live/CLivePlayer.h"

#include "Host/InstanceRig.h"
#include "Host/Live/CClockDriver.h"
#include "Host/Live/CountingSource.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

namespace Host
{
namespace
{

bool WaitFor(const std::function<bool()>& condition)
{
    for (int i = 0; i < 5000 && !condition(); ++i)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return condition();
}

class CLivePlayerTest : public testing::Test
{
protected:
    static constexpr int Block = 256;

    Tests::CInstanceRig rig;
    CRunOptions options;
    CEventSchedule schedule{rig.Get(), options};
    Tests::CCountingSource source{1000};
    CReadAhead input{source, 1000, false};
    CLivePlayer player{rig.Get(), input, schedule, 2, 48000.0, Block};
};

TEST_F(CLivePlayerTest, PassesTheSourceThroughTheInstanceThenIsSilentAndFinished)
{
    // The reader needs a moment to have all of it.
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    for (int frame = 0; frame < 1000; frame += Block)
    {
        EXPECT_FALSE(player.IsFinished());
        player.Process(Block);
        for (int i = 0; i < Block; ++i)
        {
            const auto expected = frame + i < 1000 ? static_cast<float>(frame + i + 1) : 0.0F;
            ASSERT_EQ(player.GetOutputs()[0][i], expected);
            ASSERT_EQ(player.GetOutputs()[1][i], -expected);
        }
    }
    EXPECT_EQ(player.GetSeconds(), 1000.0 / 48000.0);
    player.Process(Block);
    EXPECT_TRUE(player.IsFinished());
    EXPECT_EQ(player.GetOutputs()[0][0], 0.0F);
}

TEST_F(CLivePlayerTest, WhilePausedTheInstanceRestsAndNothingIsTaken)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    player.SetPaused(true);
    player.Process(Block);
    EXPECT_EQ(player.GetOutputs()[0][0], 0.0F);
    EXPECT_EQ(player.GetSeconds(), 0.0);
    std::int64_t count = -1;
    std::int64_t position = -1;
    ASSERT_EQ(rig.Get().GetCurves()->GetRefreshes(&count, &position), 0);
    EXPECT_EQ(count, 0);
    player.SetPaused(false);
    player.Process(Block);
    EXPECT_EQ(player.GetOutputs()[0][0], 1.0F);
}

TEST_F(CLivePlayerTest, TheClockPlaysItToTheEnd)
{
    const auto start = std::chrono::steady_clock::now();
    const CClockDriver driver(player, 64);
    EXPECT_TRUE(WaitFor([this] { return player.IsFinished(); }));
    // 1000 frames are 20.8 ms; what is asked here is only that it keeps time at all.
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(19));
}

} // namespace
} // namespace Host
