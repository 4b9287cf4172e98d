#include "Mirel/GUI/Native/CClickCounter.h"

#include <gtest/gtest.h>

using Mirel::GUI::CClickCounter;
using Mirel::GUI::EMouseButton;

namespace
{

constexpr std::uint32_t gap = CClickCounter::longestGapMs;
constexpr int far = CClickCounter::furthest;

TEST(CClickCounter, PressesInQuickSuccessionCountUp)
{
    CClickCounter counter;
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1000), 1);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1100), 2);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1200), 3);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1300), 4);
}

TEST(CClickCounter, LongerGapBeginsAnew)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {10, 10}, 1000);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1000 + gap), 2);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1000 + gap + gap + 1), 1);
}

TEST(CClickCounter, AnotherPlaceBeginsAnew)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {10, 10}, 1000);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10 + far, 10 - far}, 1000), 2);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10 + far, 11}, 1000), 1)
        << "far in y from the press before";
}

TEST(CClickCounter, AnotherButtonBeginsAnew)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {10, 10}, 1000);
    EXPECT_EQ(counter.CountPress(EMouseButton::Right, {10, 10}, 1001), 1);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1002), 1);
}

TEST(CClickCounter, ReleaseHasTheCountOfItsPressWhateverCameBetween)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {10, 10}, 1000);
    counter.CountPress(EMouseButton::Left, {10, 10}, 1001);
    counter.CountPress(EMouseButton::Right, {10, 10}, 1002);
    EXPECT_EQ(counter.CountRelease(EMouseButton::Left, {10, 10}), 2);
    EXPECT_EQ(counter.CountRelease(EMouseButton::Right, {10, 10}), 1);
    EXPECT_EQ(counter.CountRelease(EMouseButton::Middle, {10, 10}), 0);
}

TEST(CClickCounter, PressAfterADragBeginsAnew)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {10, 10}, 1000);
    EXPECT_EQ(counter.CountRelease(EMouseButton::Left, {10, 10 + far + 1}), 1);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1001), 1);
    EXPECT_EQ(counter.CountRelease(EMouseButton::Left, {10 - far, 10}), 1);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {10, 10}, 1002), 2);
}

TEST(CClickCounter, TimeThatWrapsStaysQuick)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {0, 0}, 0xFFFFFFFF);
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {0, 0}, 99), 2);
}

TEST(CClickCounter, ResetBeginsAnew)
{
    CClickCounter counter;
    counter.CountPress(EMouseButton::Left, {0, 0}, 10);
    counter.Reset();
    EXPECT_EQ(counter.CountPress(EMouseButton::Left, {0, 0}, 11), 1);
}

} // namespace
