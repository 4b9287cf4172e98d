#include "Mirel/DataModel/Objects/LinkTransformation.h"

#include "Mirel/DataModel/Objects/ResponseCurves.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using namespace Mirel::DataModel::Objects;

namespace
{
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

const Mirel::Math::IFunction& Line()
{
    return *GetResponsePair(linearResponseCurve).function;
}
} // namespace

TEST(LinkTransformation, PositionsRunOverTheRange)
{
    EXPECT_EQ(Normalize(2.5f, {0.0f, 10.0f}), 0.25f);
    EXPECT_EQ(Normalize(15.0f, {0.0f, 10.0f}), 1.5f);
    EXPECT_EQ(Normalize(7.5f, {10.0f, 0.0f}), 0.25f);
    EXPECT_EQ(Normalize(7.0f, {4.0f, 4.0f}), 3.0f);
    EXPECT_EQ(Denormalize(0.25f, {100.0f, 200.0f}), 125.0f);
    EXPECT_EQ(Mirror(130.0f, {100.0f, 200.0f}), 170.0f);
}

TEST(LinkTransformation, ClampingLeavesNaN)
{
    EXPECT_EQ(ClampToRange(3.0f, {0.0f, 2.0f}), 2.0f);
    EXPECT_EQ(ClampToRange(-3.0f, {0.0f, 2.0f}), 0.0f);
    EXPECT_EQ(ClampToRange(1.0f, {0.0f, 2.0f}), 1.0f);
    EXPECT_EQ(ClampToRange(7.0f, {10.0f, 5.0f}), 5.0f);
    EXPECT_TRUE(std::isnan(ClampToRange(notANumber, {0.0f, 2.0f})));
}

TEST(LinkTransformation, OnlyTheNormalizedFormClamps)
{
    const SValueRange source{0.0f, 10.0f};
    const SValueRange target{100.0f, 200.0f};
    EXPECT_EQ(Transform(20.0f, {Line(), false, true}, source, target), 200.0f);
    EXPECT_EQ(Transform(-20.0f, {Line(), false, true}, source, target), 100.0f);
    EXPECT_EQ(Transform(-20.0f, {Line(), true, true}, source, target), 200.0f);
    EXPECT_EQ(Transform(20.0f, {Line(), false, false}, source, target), 20.0f);
    EXPECT_EQ(Transform(20.0f, {Line(), true, false}, source, target), 280.0f);
}

TEST(LinkTransformation, NaNComesOutAsNaN)
{
    for (const bool normalized : {false, true})
    {
        EXPECT_TRUE(
            std::isnan(Transform(notANumber, {Line(), false, normalized}, {0.0f, 1.0f}, {0.0f, 1.0f})));
    }
}

RC_GTEST_PROP(LinkTransformation, TheWayBackUndoesTheWayThere, ())
{
    const auto code = *rc::gen::inRange(0, responseCurveCount);
    const auto reverse = *rc::gen::arbitrary<bool>();
    const auto normalized = *rc::gen::arbitrary<bool>();
    const SValueRange source{0.0f, normalized ? 8.0f : 1.0f};
    const SValueRange target{normalized ? -4.0f : 0.0f, normalized ? 4.0f : 1.0f};
    const float x = source.max * static_cast<float>(*rc::gen::inRange(0, 1001)) / 1000.0f;
    const SResponsePair pair = GetResponsePair(code);

    const float y = Transform(x, {*pair.function, reverse, normalized}, source, target);
    const float back = TransformBack(y, {*pair.inverse, reverse, normalized}, source, target);
    // The steepest curve loses ten bits of the position on its way.
    RC_ASSERT(std::fabs(back - x) < 2e-3f * source.max);
}
