#include "Host/Audio/CChannelLevels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Host
{
namespace
{

TEST(CChannelLevels, AreZeroWithoutSamples)
{
    const CChannelLevels levels;
    EXPECT_EQ(levels.GetPeak(), 0.0);
    EXPECT_EQ(levels.GetRms(), 0.0);
}

TEST(CChannelLevels, TakeThePeakAndTheMeanOverAllBlocks)
{
    CChannelLevels levels;
    const float first[] = {0.5f, -0.75f};
    const float second[] = {0.25f};
    levels.Add(first, 2);
    levels.Add(second, 1);
    EXPECT_EQ(levels.GetPeak(), 0.75);
    // (0.25 + 0.5625 + 0.0625) / 3
    EXPECT_DOUBLE_EQ(levels.GetRms(), std::sqrt(0.875 / 3.0));
}

TEST(CChannelLevels, LeaveOutWhatIsNoNumber)
{
    CChannelLevels levels;
    const float samples[] = {std::numeric_limits<float>::quiet_NaN(), 1.0f};
    levels.Add(samples, 2);
    EXPECT_EQ(levels.GetPeak(), 1.0);
    EXPECT_EQ(levels.GetRms(), 1.0);
}

} // namespace
} // namespace Host
