#include "Host/Audio/CDemoSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Host
{
namespace
{

std::vector<std::vector<float>> ReadAll(IAudioSource& source, int block)
{
    std::vector<std::vector<float>> all(2);
    std::vector<std::vector<float>> buffers(2, std::vector<float>(static_cast<std::size_t>(block)));
    float* const channels[] = {buffers[0].data(), buffers[1].data()};
    for (int count = block; count == block;)
    {
        count = source.Read(channels, block);
        for (std::size_t channel = 0; channel < 2; ++channel)
        {
            all[channel].insert(all[channel].end(), buffers[channel].begin(),
                                buffers[channel].begin() + count);
        }
    }
    return all;
}

TEST(CDemoSource, IsFourSecondsOfStereoWithinFullScale)
{
    CDemoSource source;
    EXPECT_EQ(source.GetSampleRate(), 48000.0);
    EXPECT_EQ(source.GetChannelCount(), 2);
    const auto audio = ReadAll(source, 1000);
    for (const std::vector<float>& channel : audio)
    {
        EXPECT_EQ(channel.size(), 192000U);
        EXPECT_EQ(static_cast<std::int64_t>(channel.size()), source.GetFrameCount());
        const float peak = std::abs(*std::max_element(
            channel.begin(), channel.end(), [](float a, float b) { return std::abs(a) < std::abs(b); }));
        EXPECT_GT(peak, 0.5f);
        EXPECT_LE(peak, 1.0f);
    }
    EXPECT_NE(audio[0], audio[1]);
}

TEST(CDemoSource, IsTheSameHoweverItIsCut)
{
    CDemoSource first;
    CDemoSource second;
    EXPECT_EQ(ReadAll(first, 512), ReadAll(second, 777));
}

TEST(CDemoSource, SkipsToTheSameSamples)
{
    CDemoSource whole;
    CDemoSource late;
    late.Skip(5000);
    auto expected = ReadAll(whole, 512);
    for (std::vector<float>& channel : expected)
    {
        channel.erase(channel.begin(), channel.begin() + 5000);
    }
    EXPECT_EQ(ReadAll(late, 512), expected);
}

TEST(CDemoSource, GivesNothingBehindItsEnd)
{
    CDemoSource source;
    source.Skip(1'000'000);
    EXPECT_TRUE(ReadAll(source, 16)[0].empty());
}

} // namespace
} // namespace Host
