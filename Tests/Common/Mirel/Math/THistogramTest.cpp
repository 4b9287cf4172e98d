#include "Mirel/Math/THistogram.h"
#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Math;

namespace
{

using CHistogram = THistogram<TLookupTable<float, TNearestInterpolator<float, float>>>;

CHistogram MakeHistogram(int length)
{
    CHistogram histogram(151, -1.0f, 1.0f);
    histogram.SetLength(length);
    return histogram;
}

} // namespace

TEST(THistogram, EachValueCountsInTheNearestBin)
{
    CHistogram histogram = MakeHistogram(100);
    // 75 bins a unit, the first at -1: bin 75 reaches from -0.5 / 75 to 0.5 / 75.
    histogram.Add(std::vector<float>{0.0f, 0.006f, -0.006f, 0.007f, 1.0f, -1.0f});

    EXPECT_EQ(histogram.GetBin(75), 3.0f);
    EXPECT_EQ(histogram.GetBin(76), 1.0f);
    EXPECT_EQ(histogram.GetBin(150), 1.0f);
    EXPECT_EQ(histogram.GetBin(0), 1.0f);
}

TEST(THistogram, ValuesBeyondTheRangeCountAtTheEndsAndNaNInTheFirstBin)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    CHistogram histogram = MakeHistogram(100);
    histogram.Add(
        std::vector<float>{1.5f, infinity, -1.5f, -infinity, std::numeric_limits<float>::quiet_NaN()});

    EXPECT_EQ(histogram.GetBin(150), 2.0f);
    EXPECT_EQ(histogram.GetBin(0), 3.0f);
}

TEST(THistogram, ManyValuesFallInTheSameBinsAsEachAlone)
{
    // Blocks run on vectors, single values do not: the bins must agree, halves and ends included.
    std::vector<float> values;
    for (int i = -400; i <= 400; ++i)
    {
        values.push_back(static_cast<float>(i) / 300.0f);
    }
    CHistogram together = MakeHistogram(1000);
    together.Add(values);
    CHistogram alone = MakeHistogram(1000);
    for (const float value : values)
    {
        alone.Add({&value, 1});
    }
    for (int bin = 0; bin < 151; ++bin)
    {
        EXPECT_EQ(together.GetBin(bin), alone.GetBin(bin)) << bin;
    }
}

TEST(THistogram, FullestBinReadsOneAfterNormalise)
{
    CHistogram histogram = MakeHistogram(100);
    histogram.Add(std::vector<float>{0.0f, 0.0f, 0.0f, 0.0f, 0.5f});

    histogram.Normalise();

    EXPECT_EQ(histogram.GetFunction()(0.0f), 1.0f);
    EXPECT_EQ(histogram.GetFunction()(0.5f), 0.25f);
    EXPECT_EQ(histogram.GetFunction()(-0.5f), 0.0f);
}

TEST(THistogram, EmptyHistogramReadsZeroEverywhere)
{
    CHistogram histogram = MakeHistogram(100);
    histogram.Normalise();

    EXPECT_EQ(histogram.GetFunction()(0.0f), 0.0f);
}

TEST(THistogram, CloneOfTheFunctionIsFrozen)
{
    CHistogram histogram = MakeHistogram(100);
    histogram.Add(std::vector<float>{0.0f, 0.0f, 0.5f});
    histogram.Normalise();

    const std::unique_ptr<IFunction> frozen(histogram.GetFunction().Clone());
    histogram.Add(std::vector<float>{0.5f, 0.5f, 0.5f});
    histogram.Normalise();

    EXPECT_EQ((*frozen)(0.0f), 1.0f);
    EXPECT_EQ((*frozen)(0.5f), 0.5f);
    EXPECT_EQ(histogram.GetFunction()(0.5f), 1.0f);
}

TEST(THistogram, CopyReadsItsOwnBins)
{
    CHistogram histogram = MakeHistogram(100);
    histogram.Add(std::vector<float>{0.0f});
    histogram.Normalise();

    const CHistogram copy(histogram);
    histogram.Reset();

    EXPECT_EQ(copy.GetFunction()(0.0f), 1.0f);
    EXPECT_EQ(histogram.GetFunction()(0.0f), 0.0f);
}

TEST(THistogram, AddingAndNormalisingAllocatesNothing)
{
    CHistogram histogram = MakeHistogram(1000);
    const std::vector<float> values(5000, 0.25f);

    const Tests::CAllocationCounter allocations;
    histogram.Add(values);
    histogram.Normalise();

    EXPECT_EQ(allocations.GetCount(), 0U);
}
