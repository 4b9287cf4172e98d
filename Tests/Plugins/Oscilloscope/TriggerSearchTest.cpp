#include "Plugins/Oscilloscope/TriggerSearch.h"
#include "Support/LiteralScope.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace PluginsFilters;

namespace
{

constexpr auto up = ETriggerDirection::Up;
constexpr auto down = ETriggerDirection::Down;
constexpr int miss = -1;

} // namespace

TEST(TriggerSearch, UpWithTheNewestAboveFindsTheRiseThatLedThere)
{
    // Newest is position 5; the last value at most 0 is at 2.
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 1, -1, 1, 1, 1}, 0, 0.0f, up), 3);
}

TEST(TriggerSearch, UpWithTheNewestBelowGoesBackToTheRiseBeforeTheFall)
{
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 1, 1, 1, -1, -1}, 0, 0.0f, up), 1);
}

TEST(TriggerSearch, DownMirrorsUp)
{
    EXPECT_EQ(FindTrigger(std::vector<float>{1, -1, 1, -1, -1, -1}, 0, 0.0f, down), 3);
    EXPECT_EQ(FindTrigger(std::vector<float>{1, -1, -1, -1, 1, 1}, 0, 0.0f, down), 1);
}

TEST(TriggerSearch, AValueAtTheLevelIsNotYetAboveAndNotYetBelow)
{
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 0, 1, 1}, 0, 0.0f, up), 2);
    EXPECT_EQ(FindTrigger(std::vector<float>{1, 0, -1, -1}, 0, 0.0f, down), 2);
}

TEST(TriggerSearch, NewestAtTheLevelBeginsAtOneWithoutAWalk)
{
    EXPECT_EQ(FindTrigger(std::vector<float>{0, 0, 0, 0}, 0, 0.0f, up), 1);
    EXPECT_EQ(FindTrigger(std::vector<float>{0, 0, 0, 0}, 2, 0.0f, down), 1);
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 1, -1, 0.5f}, 0, 0.5f, up), 1);
}

TEST(TriggerSearch, NoCrossingIsAMiss)
{
    EXPECT_EQ(FindTrigger(std::vector<float>{1, 2, 3, 1}, 1, 0.0f, up), miss);
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, -2, -3, -1}, 1, 0.0f, up), miss);
    EXPECT_EQ(FindTrigger(std::vector<float>{1, 2, 3, 1}, 1, 0.0f, down), miss);
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, -2, -3, -1}, 1, 0.0f, down), miss);
    EXPECT_EQ(FindTrigger(std::vector<float>{}, 0, 0.0f, up), miss);
    EXPECT_EQ(FindTrigger(std::vector<float>{1}, 0, 0.0f, up), miss);
}

TEST(TriggerSearch, ACrossingIsNotSoughtAcrossTheHead)
{
    // Position 2 is the oldest: between the newest (1) and the oldest there is no neighbourhood in time.
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, -1, 1, 1}, 2, 0.0f, up), miss);
}

TEST(TriggerSearch, ACrossingBehindTheLastPositionBeginsAtTheSize)
{
    // The last value not above the level stands at the last position, the newest at position 1.
    EXPECT_EQ(FindTrigger(std::vector<float>{1, 1, -1, -1}, 2, 0.0f, up), 4);
}

TEST(TriggerSearch, NaNMeetsNoConditionAndANaNLevelCountsAsEqual)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, nan, 1, 1}, 0, 0.0f, up), 1);
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 1, -1, nan}, 0, 0.0f, up), 1);
    EXPECT_EQ(FindTrigger(std::vector<float>{-1, 1, -1, 1}, 0, nan, down), 1);
}

RC_GTEST_PROP(TriggerSearch, AgreesWithAWalkOfOneSampleAtATime, ())
{
    const int size = *rc::gen::oneOf(rc::gen::inRange(1, 12), rc::gen::inRange(1, 600));
    // Few values in long runs: levels are met exactly, and groups of vectors without a crossing occur.
    std::vector<float> values;
    while (static_cast<int>(values.size()) < size)
    {
        const int run = *rc::gen::inRange(1, size / 2 + 2);
        const int kind = *rc::gen::inRange(-2, 4);
        const float value = kind == 3 ? std::numeric_limits<float>::quiet_NaN() : static_cast<float>(kind);
        values.insert(values.end(), static_cast<std::size_t>(run), value);
    }
    values.resize(static_cast<std::size_t>(size));
    const int writePos = *rc::gen::inRange(0, size);
    const auto level = static_cast<float>(*rc::gen::inRange(-2, 3));
    const bool isDown = *rc::gen::arbitrary<bool>();

    RC_ASSERT(FindTrigger(values, writePos, level, isDown ? down : up) ==
              Tests::LiteralTrigger(values, writePos, level, isDown));
}
