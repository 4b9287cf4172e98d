#include "AAXPlugin/SilenceTest.h"

#include "Mirel/Audio/DSP/CAudioStream.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace
{

using Mirel::Audio::DSP::CAudioStream;
using MirelExt::AAXPlugin::IsSilent;

bool IsSilentSample(float sample)
{
    std::vector<float> samples = {0.0F, sample, 0.0F};
    return IsSilent(CAudioStream(samples.data(), 0, 3, 1), 3);
}

TEST(IsSilent, ThresholdItselfIsSilentOnBothSides)
{
    EXPECT_TRUE(IsSilentSample(1e-10F));
    EXPECT_TRUE(IsSilentSample(-1e-10F));
    EXPECT_TRUE(IsSilentSample(0.0F));
    EXPECT_TRUE(IsSilentSample(-0.0F));
    EXPECT_TRUE(IsSilentSample(std::numeric_limits<float>::denorm_min()));
}

TEST(IsSilent, AnythingAboveItIsNot)
{
    EXPECT_FALSE(IsSilentSample(std::nextafter(1e-10F, 1.0F)));
    EXPECT_FALSE(IsSilentSample(std::nextafter(-1e-10F, -1.0F)));
    EXPECT_FALSE(IsSilentSample(1.0F));
    EXPECT_FALSE(IsSilentSample(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(IsSilentSample(-std::numeric_limits<float>::infinity()));
}

TEST(IsSilent, NotANumberIsNoSilence)
{
    EXPECT_FALSE(IsSilentSample(std::nanf("")));
}

TEST(IsSilent, FindsOneSampleAnywhere)
{
    for (std::size_t size = 1; size < 100; ++size)
    {
        std::vector<float> samples(size, 1e-10F);
        const int count = static_cast<int>(size);
        EXPECT_TRUE(IsSilent(CAudioStream(samples.data(), 0, count, 1), count)) << size;
        for (std::size_t at = 0; at < size; ++at)
        {
            samples[at] = std::nextafter(-1e-10F, -1.0F);
            EXPECT_FALSE(IsSilent(CAudioStream(samples.data(), 0, count, 1), count)) << at << " of " << size;
            samples[at] = 1e-10F;
        }
    }
}

TEST(IsSilent, LooksAtTheSamplesOfTheBlockOnly)
{
    std::vector<float> samples = {0.0F, 1.0F};
    EXPECT_TRUE(IsSilent(CAudioStream(samples.data(), 0, 2, 1), 1));
    EXPECT_TRUE(IsSilent(CAudioStream(samples.data(), 0, 2, 1), 0));
}

TEST(IsSilent, StreamWithoutDataIsSilent)
{
    EXPECT_TRUE(IsSilent(CAudioStream(nullptr, 0, 8, 1), 8));
}

TEST(IsSilent, FollowsTheStride)
{
    std::vector<float> samples = {0.0F, 1.0F, 0.0F, 1.0F};
    EXPECT_TRUE(IsSilent(CAudioStream(samples.data(), 0, 4, 2), 2));
    float one = 1.0F;
    EXPECT_FALSE(IsSilent(CAudioStream(&one, 0, 100, 0), 100));
}

} // namespace
