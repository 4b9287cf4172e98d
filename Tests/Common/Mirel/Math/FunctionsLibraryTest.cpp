#include "Mirel/Math/FunctionsLibrary.h"

#include "FunctionTables.h"
#include "Steps.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace Mirel::Math
{
namespace
{

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// Far from 0 the result has the precision of a float, near 0 that of the numbers it was made of. An
/// exponential multiplies what its argument lost by that argument.
void ExpectSinglePrecision(float got, double wanted, double scale, double argument = 0.0)
{
    if (std::isinf(wanted) || std::isnan(wanted))
    {
        EXPECT_EQ(std::isnan(wanted), std::isnan(got));
        EXPECT_TRUE(std::isnan(wanted) || static_cast<double>(got) == wanted) << got << " for " << wanted;
        return;
    }
    EXPECT_NEAR(static_cast<double>(got), wanted,
                1e-6 * (1.0 + std::abs(argument)) * std::max(std::abs(wanted), scale));
}

} // namespace

TEST(FunctionsLibrary, EveryFunctionOfOneVariableHasItsValueAndItsKey)
{
    for (const CFunctionRow& row : functionRows)
    {
        SCOPED_TRACE(row.name);
        const auto function = CreateFunction<IFunction>(row.key);
        ASSERT_NE(function, nullptr);
        EXPECT_STREQ(function->GetTypeKey(), row.key);
        for (const float x : {-7.5f, -4.0f, -2.5f, -1.0f, -0.75f, -0.5f, -0.0f, 0.0f, 0.01f, 0.25f, 0.5f,
                              0.9f, 1.0f, 1.5f, 2.0f, 2.5f, 3.0f, 10.0f, 11.25f})
        {
            SCOPED_TRACE(x);
            ExpectSinglePrecision((*function)(x), row.value(static_cast<double>(x)), row.scale,
                                  static_cast<double>(x));
        }
    }
}

TEST(FunctionsLibrary, EveryFunctionOfTwoVariablesHasItsValueAndItsKey)
{
    const std::vector<float> numbers{-4.5f, -3.0f, -1.0f, -0.0f, 0.0f, 0.5f, 1.0f, 2.0f, 3.0f, 4.0f, 10.5f};
    for (const CBinaryFunctionRow& row : binaryFunctionRows)
    {
        SCOPED_TRACE(row.name);
        const auto function = CreateFunction<IBinaryFunction>(row.key);
        ASSERT_NE(function, nullptr);
        EXPECT_STREQ(function->GetTypeKey(), row.key);
        for (const float x : numbers)
        {
            for (const float y : numbers)
            {
                SCOPED_TRACE(testing::Message() << x << ", " << y);
                ExpectSinglePrecision((*function)(x, y),
                                      row.value(static_cast<double>(x), static_cast<double>(y)), 0.0);
            }
        }
    }
}

TEST(FunctionsLibrary, RoundTakesHalvesAwayFromZero)
{
    EXPECT_EQ(FunctionsLibrary::Round(0.0f), 0.0f);
    EXPECT_EQ(FunctionsLibrary::Round(-0.0f), 0.0f);
    EXPECT_EQ(FunctionsLibrary::Round(2.5f), 3.0f);
    EXPECT_EQ(FunctionsLibrary::Round(-2.5f), -3.0f);
    EXPECT_EQ(FunctionsLibrary::Round(2.4999998f), 2.0f);
    EXPECT_EQ(FunctionsLibrary::Round(-0.4f), 0.0f);
}

TEST(FunctionsLibrary, RoundAddsInDoublePrecision)
{
    // The largest float below one half: in single precision the sum would be 1.
    EXPECT_EQ(FunctionsLibrary::Round(std::nextafter(0.5f, 0.0f)), 0.0f);
    // An odd number above 2^23, where the float grid has no halves any more.
    EXPECT_EQ(FunctionsLibrary::Round(8388609.0f), 8388609.0f);
}

TEST(FunctionsLibrary, RoundBeyondThirtyTwoBitsIsTheLowestInteger)
{
    EXPECT_EQ(FunctionsLibrary::Round(2147483520.0f), 2147483520.0f);
    for (const float x : {2147483648.0f, 1e20f, -1e20f, infinity, -infinity, nan})
    {
        EXPECT_EQ(FunctionsLibrary::Round(x), -2147483648.0f) << x;
    }
}

TEST(FunctionsLibrary, SquareRootOfWhatHasNoneIsZero)
{
    EXPECT_EQ(FunctionsLibrary::SquareRoot(-4.0f), 0.0f);
    EXPECT_EQ(FunctionsLibrary::SquareRoot(0.0f), 0.0f);
    EXPECT_FALSE(std::signbit(FunctionsLibrary::SquareRoot(-0.0f)));
    EXPECT_EQ(FunctionsLibrary::SquareRoot(nan), 0.0f);
    EXPECT_EQ(FunctionsLibrary::SquareRoot(6.25f), 2.5f);
}

TEST(FunctionsLibrary, NormalisedCurvesRunFromZeroToOne)
{
    for (auto* curve : {&FunctionsLibrary::NormExp, &FunctionsLibrary::NormLog, &FunctionsLibrary::NormExp1,
                        &FunctionsLibrary::NormLog1, &FunctionsLibrary::NormExp2, &FunctionsLibrary::NormLog2,
                        &FunctionsLibrary::NormExp3, &FunctionsLibrary::NormLog3})
    {
        EXPECT_EQ(curve(0.0f), 0.0f);
        EXPECT_NEAR(curve(1.0f), 1.0f, 2e-7f);
    }
    EXPECT_EQ(FunctionsLibrary::NormLog3(1.0f), 1.0f);
}

TEST(FunctionsLibrary, NormalisedLogarithmsUndoTheExponentials)
{
    using namespace FunctionsLibrary;
    for (const float x : Steps(0.0f, 1.0f, 0.0625f))
    {
        EXPECT_NEAR(NormLog(NormExp(x)), x, 1e-6f);
        EXPECT_NEAR(NormLog1(NormExp1(x)), x, 1e-6f);
        EXPECT_NEAR(NormLog2(NormExp2(x)), x, 1e-5f);
        EXPECT_NEAR(NormLog3(NormExp3(x)), x, 1e-4f);
    }
}

TEST(FunctionsLibrary, NegateFlipsTheSignBitAndNothingElse)
{
    for (const float x : {0.0f, -0.0f, 1.5f, -1e-40f, infinity, nan})
    {
        EXPECT_EQ(std::bit_cast<std::uint32_t>(FunctionsLibrary::Negate(x)),
                  std::bit_cast<std::uint32_t>(x) ^ 0x80000000U);
    }
}

TEST(FunctionsLibrary, DecibelsGoBothWays)
{
    EXPECT_EQ(FunctionsLibrary::TodB(1.0f), 0.0f);
    EXPECT_EQ(FunctionsLibrary::TodB(10.0f), 20.0f);
    EXPECT_EQ(FunctionsLibrary::TodB(0.0f), -infinity);
    EXPECT_EQ(FunctionsLibrary::TodB(2.0f), 6.020599913279624f);
    EXPECT_EQ(FunctionsLibrary::FromdB(20.0f), 10.0f);
    EXPECT_EQ(FunctionsLibrary::FromdB(-infinity), 0.0f);
}

TEST(FunctionsLibrary, ModuleIsTheLengthOfAVector)
{
    EXPECT_EQ(FunctionsLibrary::Module(3.0f, 4.0f), 5.0f);
}

TEST(FunctionsLibrary, LogicTakesWhatIsNotZeroForTrue)
{
    using namespace FunctionsLibrary;
    EXPECT_EQ(And(2.0f, 3.0f), 1.0f);
    EXPECT_EQ(And(-0.0f, 3.0f), 0.0f);
    EXPECT_EQ(And(2.0f, 0.0f), 0.0f);
    EXPECT_EQ(Or(0.0f, 0.0f), 0.0f);
    EXPECT_EQ(Or(-1e-45f, 0.0f), 1.0f);
    EXPECT_EQ(Not(infinity), 0.0f);
    EXPECT_EQ(Not(-0.0f), 1.0f);
}

TEST(FunctionsLibrary, LogicTakesNaNForFalse)
{
    using namespace FunctionsLibrary;
    EXPECT_EQ(Not(nan), 1.0f);
    EXPECT_EQ(And(nan, 1.0f), 0.0f);
    EXPECT_EQ(And(1.0f, nan), 0.0f);
    EXPECT_EQ(Or(nan, 0.0f), 0.0f);
    EXPECT_EQ(Or(0.0f, nan), 0.0f);
    EXPECT_EQ(Or(nan, 1.0f), 1.0f);
    EXPECT_EQ(Or(1.0f, nan), 1.0f);
}

TEST(FunctionsLibrary, ComparisonsWithNaNHaveFixedOutcomes)
{
    using namespace FunctionsLibrary;
    for (const auto& [x, y] :
         std::vector<std::pair<float, float>>{{nan, 1.0f}, {1.0f, nan}, {nan, nan}, {-nan, 0.0f}})
    {
        EXPECT_EQ(Equality(x, y), 1.0f);
        EXPECT_EQ(LowerThan(x, y), 1.0f);
        EXPECT_EQ(LowerThanEqual(x, y), 1.0f);
        EXPECT_EQ(NotEqual(x, y), 0.0f);
        EXPECT_EQ(GreaterThan(x, y), 0.0f);
        EXPECT_EQ(GreaterThanEqual(x, y), 0.0f);
    }
}

TEST(FunctionsLibrary, MaxAndMinWithNaNGiveTheSecond)
{
    using namespace FunctionsLibrary;
    EXPECT_EQ(Max(nan, 1.0f), 1.0f);
    EXPECT_EQ(Min(nan, 1.0f), 1.0f);
    EXPECT_TRUE(std::isnan(Max(1.0f, nan)));
    EXPECT_TRUE(std::isnan(Min(1.0f, nan)));
}

TEST(FunctionsLibrary, OfEqualZerosMaxAndMinGiveTheFirst)
{
    EXPECT_TRUE(std::signbit(FunctionsLibrary::Max(-0.0f, 0.0f)));
    EXPECT_FALSE(std::signbit(FunctionsLibrary::Max(0.0f, -0.0f)));
    EXPECT_TRUE(std::signbit(FunctionsLibrary::Min(-0.0f, 0.0f)));
}

TEST(FunctionsLibrary, SharedObjectsAreTheSameForAll)
{
    const IFunction& first = SharedFunction<&FunctionsLibrary::Exp>();
    const IBinaryFunction& sum = SharedBinaryFunction<&FunctionsLibrary::Sum>();
    EXPECT_EQ(&first, &SharedFunction<&FunctionsLibrary::Exp>());
    EXPECT_EQ(&sum, &SharedBinaryFunction<&FunctionsLibrary::Sum>());
    EXPECT_EQ(sum(2.0f, 3.0f), 5.0f);
}

} // namespace Mirel::Math
