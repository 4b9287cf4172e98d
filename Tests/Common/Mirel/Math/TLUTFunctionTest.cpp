#include "Mirel/Math/TLUTFunction.h"

#include "Mirel/Math/TDeprecatedCircularLUTFunction.h"
#include "SavedFunctions.h"
#include "Steps.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace Mirel::Math
{
namespace
{

using CLinear = Core::TLookupTable<float, Core::TLinearInterpolator<float, float>>;
using CNearest = Core::TLookupTable<float, Core::TNearestInterpolator<float, float>>;
using CSpline = Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>;
using Serialization::CMemDataObject;

template <class L>
TLUTFunction<L> MakeFunction(float xMin, float xMax, const std::vector<float>& values)
{
    L table(xMin, xMax, static_cast<int>(values.size()));
    std::copy(values.begin(), values.end(), table.GetPositions());
    return TLUTFunction<L>(std::move(table));
}

template <class L>
class TTableTest : public testing::Test
{
};

using Tables = testing::Types<CLinear, CNearest, CSpline>;
TYPED_TEST_SUITE(TTableTest, Tables);

/// The values 0 to 9 written into a ring of 4: it holds 6 to 9, in turn.
template <class L>
TDeprecatedCircularLUTFunction<L> MakeRing()
{
    TDeprecatedCircularLUTFunction<L> ring(0.0f, 3.0f);
    ring.SetSize(4);
    ring.Write(std::vector<float>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    return ring;
}

} // namespace

TYPED_TEST(TTableTest, GoesThroughItsValues)
{
    const auto function = MakeFunction<TypeParam>(-1.0f, 1.0f, {3.0f, -2.0f, 5.0f, 5.0f, 0.5f});
    const std::vector<std::pair<float, float>> points{
        {-1.0f, 3.0f}, {-0.5f, -2.0f}, {0.0f, 5.0f}, {0.5f, 5.0f}, {1.0f, 0.5f}};
    for (const auto& [x, y] : points)
    {
        EXPECT_EQ(function(x), y) << x;
    }
}

TYPED_TEST(TTableTest, BeyondTheEndsIsTheValueOfTheEnd)
{
    const auto function = MakeFunction<TypeParam>(0.0f, 2.0f, {4.0f, 1.0f, 6.0f});
    EXPECT_EQ(function(-5.0f), 4.0f);
    EXPECT_EQ(function(7.0f), 6.0f);
    EXPECT_EQ(function(-std::numeric_limits<float>::infinity()), 4.0f);
    EXPECT_EQ(function(std::numeric_limits<float>::infinity()), 6.0f);
    EXPECT_EQ(function(std::numeric_limits<float>::quiet_NaN()), 4.0f);
}

TYPED_TEST(TTableTest, EmptyIsZero)
{
    EXPECT_EQ(TLUTFunction<TypeParam>()(0.5f), 0.0f);
}

TYPED_TEST(TTableTest, OneValueIsThatValueEverywhere)
{
    const auto function = MakeFunction<TypeParam>(0.0f, 1.0f, {4.0f});
    EXPECT_EQ(function(0.0f), 4.0f);
    EXPECT_EQ(function(0.7f), 4.0f);
}

TYPED_TEST(TTableTest, ComesBackFromEveryForm)
{
    const auto function = MakeFunction<TypeParam>(-2.0f, 3.0f, {0.1f, 0.7f, -0.3f, 0.9f, 1.1f, 2.0f});
    ThroughEveryForm<IFunction>(function,
                                [&function](std::unique_ptr<IFunction> read)
                                {
                                    ASSERT_NE(read, nullptr);
                                    EXPECT_STREQ(read->GetTypeKey(), function.GetTypeKey());
                                    for (const float x : Steps(-2.5f, 3.5f, 0.09f))
                                    {
                                        EXPECT_EQ((*read)(x), function(x)) << x;
                                    }
                                });
}

TYPED_TEST(TTableTest, ClonesAreIndependent)
{
    auto function = MakeFunction<TypeParam>(0.0f, 1.0f, {1.0f, 2.0f});
    const std::unique_ptr<IFunction> clone(function.Clone());
    CMemDataObject saved;
    ASSERT_TRUE((MakeFunction<TypeParam>(0.0f, 1.0f, {8.0f, 9.0f}).Serialize(saved)));
    ASSERT_TRUE(function.Deserialize(saved));
    EXPECT_EQ(function(0.0f), 8.0f);
    EXPECT_EQ((*clone)(0.0f), 1.0f);
}

TYPED_TEST(TTableTest, RangesThatGiveNoPositionsAreRefused)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const std::vector<std::pair<float, float>> ranges{{1.0f, 1.0f},    {2.0f, 1.0f},     {nan, 1.0f},
                                                      {0.0f, nan},     {0.0f, infinity}, {-infinity, 0.0f},
                                                      {-3e38f, 3e38f}, {0.0f, 1e-40f}};
    for (const auto& [xMin, xMax] : ranges)
    {
        SCOPED_TRACE(testing::Message() << xMin << " to " << xMax);
        CMemDataObject saved;
        ASSERT_TRUE((MakeFunction<TypeParam>(0.0f, 1.0f, {8.0f, 9.0f}).Serialize(saved)));
        saved.Write("xMin", xMin);
        saved.Write("xMax", xMax);
        TLUTFunction<TypeParam> function;
        EXPECT_FALSE(function.Deserialize(saved));
        TCircularLUTFunction<TypeParam> ring;
        saved.Write("start", 0);
        saved.Write("stop", 0);
        saved.Write("writePos", 0);
        EXPECT_FALSE(ring.Deserialize(saved));
    }
}

TYPED_TEST(TTableTest, EvaluationAllocatesNothing)
{
    const auto function = MakeFunction<TypeParam>(0.0f, 1.0f, {1.0f, 2.0f, 4.0f});
    const auto ring = MakeRing<TypeParam>();
    const std::vector<float> steps = Steps(0.0f, 1.0f, 0.01f);
    const Tests::CAllocationCounter counter;
    float sum = 0.0f;
    for (const float x : steps)
    {
        sum += function(x) + ring(x);
    }
    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_NE(sum, 0.0f);
}

TEST(TLUTFunction, LinearFormRunsStraightBetweenValues)
{
    const auto function = MakeFunction<CLinear>(0.0f, 2.0f, {0.0f, 10.0f, -10.0f});
    EXPECT_EQ(function(0.25f), 2.5f);
    EXPECT_EQ(function(1.5f), 0.0f);
    EXPECT_EQ(function(1.75f), -5.0f);
    EXPECT_STREQ(function.GetTypeKey(), "{1AB22102-22F5-45b9-BDAF-54B85C61968F}");
}

TEST(TLUTFunction, NearestFormTakesTheNearerValue)
{
    const auto function = MakeFunction<CNearest>(0.0f, 2.0f, {0.0f, 10.0f, -10.0f});
    EXPECT_EQ(function(0.49f), 0.0f);
    EXPECT_EQ(function(0.5f), 10.0f);
    EXPECT_EQ(function(1.51f), -10.0f);
}

TEST(TLUTFunction, SplineFormLeavesItsEndsFlat)
{
    // Rising values with an end on either side: a curve that goes on flat has slope 0 there, so close to the
    // end it moves with the square of the distance.
    const auto function = MakeFunction<CSpline>(0.0f, 3.0f, {5.0f, 6.0f, 7.0f, 8.0f});
    EXPECT_NEAR(function(0.001f), 5.0f, 1e-5f);
    EXPECT_NEAR(function(2.999f), 8.0f, 1e-5f);
    EXPECT_EQ(function(1.5f), 6.5f);
}

TEST(TLUTFunction, SplineFormNeverOvershoots)
{
    const std::vector<float> values{0.0f, 1.0f, 0.9f, -2.0f, 3.0f, 3.0f, 10.0f};
    const auto function = MakeFunction<CSpline>(0.0f, 6.0f, values);
    for (std::size_t i = 0; i + 1 < values.size(); ++i)
    {
        const float low = std::min(values[i], values[i + 1]);
        const float high = std::max(values[i], values[i + 1]);
        for (const float t : Steps(0.0f, 1.0f, 0.0625f))
        {
            const float y = function(static_cast<float>(i) + t);
            EXPECT_GE(y, low - 1e-5f);
            EXPECT_LE(y, high + 1e-5f);
        }
    }
}

TYPED_TEST(TTableTest, TheEarlierRingShowsTheOldestValueFirst)
{
    const auto ring = MakeRing<TypeParam>();
    EXPECT_EQ(ring(0.0f), 6.0f);
    EXPECT_EQ(ring(1.0f), 7.0f);
    EXPECT_EQ(ring(2.0f), 8.0f);
    EXPECT_EQ(ring(3.0f), 9.0f);
    EXPECT_EQ(ring.GetSize(), 4);
}

TEST(TDeprecatedCircularLUTFunction, ComesBackFromEveryForm)
{
    const auto ring = MakeRing<CSpline>();
    EXPECT_STREQ(ring.GetTypeKey(), "{C2D27847-1FD3-461e-9E92-922EAE3D07E2}");
    ThroughEveryForm<IFunction>(ring,
                                [&ring](std::unique_ptr<IFunction> read)
                                {
                                    ASSERT_NE(read, nullptr);
                                    EXPECT_STREQ(read->GetTypeKey(), ring.GetTypeKey());
                                    for (const float x : Steps(0.0f, 3.0f, 0.1f))
                                    {
                                        EXPECT_EQ((*read)(x), ring(x)) << x;
                                    }
                                });
}

TEST(TCircularLUTFunction, ComesBackFromEveryFormWithItsRangeAndWindow)
{
    TCircularLUTFunction<CSpline> ring(-1.0f, 0.0f);
    ring.SetSize(6);
    ring.Write(std::vector<float>{1, 5, 2, 8, 3, 9, 4});
    ring.SetWindow(3, 2);
    ThroughEveryForm<IFunction>(ring,
                                [&ring](std::unique_ptr<IFunction> read)
                                {
                                    ASSERT_NE(read, nullptr);
                                    for (const float x : Steps(-1.0f, 0.0f, 0.03f))
                                    {
                                        EXPECT_EQ((*read)(x), ring(x)) << x;
                                    }
                                });
}

TEST(TCircularLUTFunction, WithoutASavedRangeItKeepsItsOwn)
{
    TCircularLUTFunction<CNearest> ring(0.0f, 1.0f);
    ring.SetSize(2);
    ring.Write(std::vector<float>{1.0f, 2.0f});
    CMemDataObject saved;
    ASSERT_TRUE(ring.Serialize(saved));
    saved.Remove("xMin");
    saved.Remove("xMax");
    TCircularLUTFunction<CNearest> read(0.0f, 10.0f);
    ASSERT_TRUE(read.Deserialize(saved));
    EXPECT_EQ(read(4.0f), 1.0f);
    EXPECT_EQ(read(6.0f), 2.0f);
}

} // namespace Mirel::Math
