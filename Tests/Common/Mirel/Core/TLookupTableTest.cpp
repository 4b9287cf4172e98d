#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Core/Interpolators.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Core;

namespace
{

using CNearest = TLookupTable<float, TNearestInterpolator<float, float>>;
using CSpline = TConstrainedSplineInterpolator<float, float>;

/// The slope of a constrained spline at a point between two chords: their harmonic mean, 0 at an extremum.
double Slope(double before, double after)
{
    return before * after > 0.0 ? 2.0 * before * after / (before + after) : 0.0;
}

/// A cubic Hermite segment from b to c between neighbours a and e.
double Hermite(double a, double b, double c, double e, double t)
{
    const double m0 = Slope(b - a, c - b);
    const double m1 = Slope(c - b, e - c);
    const double t2 = t * t;
    const double t3 = t2 * t;
    return (2 * t3 - 3 * t2 + 1) * b + (t3 - 2 * t2 + t) * m0 + (-2 * t3 + 3 * t2) * c + (t3 - t2) * m1;
}

/// Whole numbers from -limit to limit, divided.
std::array<float, 4> DrawSamples(int limit, float divisor)
{
    std::array<float, 4> samples{};
    for (float& sample : samples)
    {
        sample = static_cast<float>(*rc::gen::inRange(-limit, limit + 1)) / divisor;
    }
    return samples;
}

} // namespace

TEST(TNearestInterpolator, HalvesGoUp)
{
    const std::vector<float> values{10.0f, 20.0f, 30.0f};
    using CInterpolator = TNearestInterpolator<float, float>;

    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 0.49f), 10.0f);
    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 0.5f), 20.0f);
    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 2.0f), 30.0f);
}

TEST(TLinearInterpolator, RunsStraightToTheNextEntryAndIntoTheGuard)
{
    const std::vector<float> values{10.0f, 20.0f, -4.0f}; // two positions and their guard
    using CInterpolator = TLinearInterpolator<float, float>;

    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 0.0f), 10.0f);
    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 0.25f), 12.5f);
    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 1.0f), 20.0f);
    EXPECT_EQ(CInterpolator::Interpolate(values.data(), 1.5f), 8.0f);
}

TEST(TLookupTable, RangeIsSpreadOverThePositionsAndClamped)
{
    CNearest table(-1.0f, 1.0f, 151);
    table.GetPositions()[0] = 1.0f;
    table.GetPositions()[75] = 2.0f;
    table.GetPositions()[150] = 3.0f;

    EXPECT_EQ(table(-1.0f), 1.0f);
    EXPECT_EQ(table(0.0f), 2.0f);
    EXPECT_EQ(table(1.0f), 3.0f);
    EXPECT_EQ(table(-7.0f), 1.0f);
    EXPECT_EQ(table(7.0f), 3.0f);
}

TEST(TLookupTable, NaNReadsTheLowEnd)
{
    CNearest table(-1.0f, 1.0f, 3);
    table.GetPositions()[0] = 5.0f;

    EXPECT_EQ(table(std::numeric_limits<float>::quiet_NaN()), 5.0f);
}

TEST(TLookupTable, EmptyTableReadsZero)
{
    EXPECT_EQ(CNearest(-1.0f, 1.0f, 0)(0.5f), 0.0f);
    EXPECT_EQ(CNearest(-1.0f, 1.0f, -3)(0.5f), 0.0f);
}

TEST(TLookupTable, PositionZeroStartsACacheLineWhateverTheGuards)
{
    TLookupTable<float, CSpline> table(-1.0f, 0.0f, 100);

    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(table.GetPositions()) % cacheLineSize, 0U);
    EXPECT_EQ(table.GetEntries().size(), 103U);
    EXPECT_EQ(table.GetPositions(), table.GetEntries().data() + 1);
}

RC_GTEST_PROP(TConstrainedSplineInterpolator, AgreesWithTheHermiteFormOfTheSameSlopes, ())
{
    const std::array<float, 4> values = DrawSamples(1000, 500.0f);
    const float t = static_cast<float>(*rc::gen::inRange(0, 1000)) / 1000.0f;

    const std::vector<double> exact(values.begin(), values.end());
    const double expected = Hermite(exact[0], exact[1], exact[2], exact[3], static_cast<double>(t));
    RC_ASSERT(std::abs(static_cast<double>(CSpline::Interpolate(values.data(), t)) - expected) < 1e-5);
}

RC_GTEST_PROP(TConstrainedSplineInterpolator, NeverOvershootsTheSamplesBesideIt, ())
{
    const std::array<float, 4> values = DrawSamples(100, 100.0f);
    const float t = static_cast<float>(*rc::gen::inRange(0, 1000)) / 1000.0f;

    const auto [low, high] = std::minmax(values[1], values[2]);
    const float value = CSpline::Interpolate(values.data(), t);
    RC_ASSERT(value >= low - 1e-5f && value <= high + 1e-5f);
}
