#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <numeric>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Math;

namespace
{

using CSpline = TConstrainedSplineInterpolator<float, float>;
using CWaveform = TCircularLUTFunction<TLookupTable<float, CSpline>>;
using CNearestRing = TCircularLUTFunction<TLookupTable<float, TNearestInterpolator<float, float>>>;

/// A ring of five positions from x = 0 to x = 4, so that x is a position. Nearest neighbour: values as they
/// stand.
CNearestRing MakeRing(const std::vector<float>& written)
{
    CNearestRing ring(0.0f, 4.0f);
    ring.SetSize(5);
    ring.Write(written);
    return ring;
}

CWaveform MakeWaveform(const std::vector<float>& written)
{
    CWaveform waveform(0.0f, 4.0f);
    waveform.SetSize(5);
    waveform.Write(written);
    return waveform;
}

float Spline(std::vector<float> values, float t)
{
    return CSpline::Interpolate(values.data(), t);
}

} // namespace

TEST(TCircularLUTFunction, WritesRoundAndRound)
{
    const CNearestRing ring = MakeRing({1, 2, 3, 4, 5, 6, 7});

    const std::vector<float> values(ring.GetValues().begin(), ring.GetValues().end());
    EXPECT_EQ(values, (std::vector<float>{6, 7, 3, 4, 5}));
    EXPECT_EQ(ring.GetWritePos(), 2);
}

TEST(TCircularLUTFunction, ABlockOfManyRoundsLeavesItsLastValues)
{
    std::vector<float> block(23);
    std::iota(block.begin(), block.end(), 0.0f);
    const CNearestRing ring = MakeRing(block);

    const std::vector<float> values(ring.GetValues().begin(), ring.GetValues().end());
    EXPECT_EQ(values, (std::vector<float>{20, 21, 22, 18, 19}));
    EXPECT_EQ(ring.GetWritePos(), 3);
}

TEST(TCircularLUTFunction, ZerosAreWrittenLikeValues)
{
    CNearestRing ring = MakeRing({1, 2, 3, 4});
    ring.WriteZeros(3);

    const std::vector<float> values(ring.GetValues().begin(), ring.GetValues().end());
    EXPECT_EQ(values, (std::vector<float>{0, 0, 3, 4, 0}));
    EXPECT_EQ(ring.GetWritePos(), 2);
}

TEST(TCircularLUTFunction, LowEndIsReadAtStartAndWrapsOnce)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14, 15, 16});
    ring.SetWindow(2, 2);

    EXPECT_EQ(ring(0.0f), 12.0f);
    EXPECT_EQ(ring(2.0f), 14.0f);
    EXPECT_EQ(ring(3.0f), 15.0f);
    EXPECT_EQ(ring(4.0f), 16.0f);
}

TEST(TCircularLUTFunction, StartAtTheSizeIsPositionZero)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14});
    ring.SetWindow(5, 0);

    EXPECT_EQ(ring(0.0f), 10.0f);
    EXPECT_EQ(ring(4.0f), 14.0f);
}

TEST(TCircularLUTFunction, FlatFromStopToTheHeadWhereTheHeadIsAhead)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14, 15, 16, 17});
    ring.SetWindow(0, 1); // the head is at 3
    EXPECT_EQ(ring(0.0f), 15.0f);
    EXPECT_EQ(ring(1.0f), 13.0f);
    EXPECT_EQ(ring(2.0f), 13.0f);
    EXPECT_EQ(ring(3.0f), 13.0f);
    EXPECT_EQ(ring(4.0f), 14.0f);
}

TEST(TCircularLUTFunction, FlatOutsideHeadToStopWhereTheHeadIsBehind)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14, 15});
    ring.SetWindow(0, 3); // the head is at 1
    EXPECT_EQ(ring(0.0f), 11.0f);
    EXPECT_EQ(ring(1.0f), 11.0f);
    EXPECT_EQ(ring(2.0f), 12.0f);
    EXPECT_EQ(ring(3.0f), 11.0f);
    EXPECT_EQ(ring(4.0f), 11.0f);
}

TEST(TCircularLUTFunction, WhatIsWrittenAfterTheWindowWasFixedIsHidden)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14});
    ring.SetWindow(0, 0);
    ring.Write(std::vector<float>{99, 98});

    EXPECT_EQ(ring(0.0f), 12.0f);
    EXPECT_EQ(ring(1.0f), 12.0f);
    EXPECT_EQ(ring(2.0f), 12.0f);
    EXPECT_EQ(ring(3.0f), 13.0f);
}

TEST(TCircularLUTFunction, LastPositionFillsBothGuardsBehindIt)
{
    const CWaveform waveform = MakeWaveform({1, 2, 4, 7, 3});

    // Between the last two positions the neighbour on the right is the last value again.
    EXPECT_EQ(waveform(3.5f), Spline({4, 7, 3, 3}, 0.5f));
    // Behind the last position there is only that value.
    CWaveform wrapped = waveform;
    wrapped.SetWindow(1, 0);
    EXPECT_EQ(wrapped(3.5f), Spline({7, 3, 3, 3}, 0.5f));
}

TEST(TCircularLUTFunction, PositionZeroLeavesTheGuardInFrontAtZero)
{
    CWaveform waveform = MakeWaveform({1, 2, 4, 7, 3, 9});
    waveform.SetWindow(0, 1);

    EXPECT_EQ(waveform(0.5f), Spline({0, 9, 2, 4}, 0.5f));
}

TEST(TCircularLUTFunction, ResetZeroesTheTableAndKeepsStop)
{
    CWaveform waveform = MakeWaveform({1, 2, 3});
    waveform.SetWindow(2, 4);
    waveform.Reset();

    EXPECT_EQ(waveform.GetWritePos(), 0);
    EXPECT_EQ(waveform.GetStart(), 0);
    EXPECT_EQ(waveform.GetStop(), 4);
    EXPECT_EQ(waveform(1.5f), 0.0f);
}

TEST(TCircularLUTFunction, TablesOfNoneAndOnePositionTakeEverything)
{
    CWaveform waveform(-1.0f, 0.0f);
    waveform.Write(std::vector<float>{1, 2});
    EXPECT_EQ(waveform(-0.5f), 0.0f);

    waveform.SetSize(1);
    waveform.Write(std::vector<float>{1, 2});
    EXPECT_EQ(waveform.GetWritePos(), 0);
    waveform.SetWindow(0, 0);
    EXPECT_EQ(waveform(-1.0f), 2.0f);
}

TEST(TCircularLUTFunction, ArgumentsOutsideTheRangeAndNaNAreClamped)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14});

    EXPECT_EQ(ring(-9.0f), 10.0f);
    EXPECT_EQ(ring(9.0f), 14.0f);
    EXPECT_EQ(ring(std::numeric_limits<float>::quiet_NaN()), 10.0f);
}

TEST(TCircularLUTFunction, CloneIsAFrozenPicture)
{
    CNearestRing ring = MakeRing({10, 11, 12, 13, 14, 15});
    ring.SetWindow(1, 1);
    const std::unique_ptr<IFunction> frozen(ring.Clone());
    ring.Write(std::vector<float>{99, 99, 99, 99, 99});
    ring.SetWindow(3, 3);

    EXPECT_EQ((*frozen)(0.0f), 11.0f);
    EXPECT_EQ((*frozen)(4.0f), 15.0f);
}
