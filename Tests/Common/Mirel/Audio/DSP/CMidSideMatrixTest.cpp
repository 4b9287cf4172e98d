#include "Mirel/Audio/DSP/CMidSideMatrix.h"

#include "Mirel/Audio/DSP/CAudioStream.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Audio::DSP;

namespace
{

struct SPair
{
    std::vector<float> first;
    std::vector<float> second;
};

SPair Encode(CMidSideMatrix& matrix, std::vector<float> left, std::vector<float> right)
{
    const auto count = static_cast<int>(left.size());
    SPair encoded{std::vector<float>(left.size()), std::vector<float>(left.size())};
    const CAudioStream leftStream(left.data(), 0, count, 1);
    const CAudioStream rightStream(right.data(), 0, count, 1);
    matrix.Encode(leftStream, rightStream, 0, count, encoded.first.data(), encoded.second.data());
    return encoded;
}

CDynamicParamsVariations Ramp(float start, float slope, float bend = 0.0f)
{
    CDynamicParamsVariations variations(1);
    variations.Resize(3);
    variations[0].SetValue(0, start);
    variations[1].SetValue(0, slope);
    variations[2].SetValue(0, bend);
    return variations;
}

} // namespace

TEST(CMidSideMatrix, AtRestOnStereoItIsTheIdentity)
{
    CMidSideMatrix matrix;
    EXPECT_TRUE(matrix.IsIdentity());
    matrix.SetMode(1.0f);
    EXPECT_FALSE(matrix.IsIdentity());
    matrix.SetMode(0.0f);
    EXPECT_TRUE(matrix.IsIdentity());
    const auto moving = Ramp(0.0f, 0.1f);
    matrix.SetMode(&moving, 0);
    EXPECT_FALSE(matrix.IsIdentity());
}

TEST(CMidSideMatrix, MidIsTheMeanAndSideHalfOfRightMinusLeft)
{
    CMidSideMatrix matrix;
    matrix.SetMode(1.0f);
    const SPair encoded = Encode(matrix, {1.0f, 0.25f}, {3.0f, -0.75f});

    EXPECT_EQ(encoded.first, (std::vector<float>{2.0f, -0.25f}));
    EXPECT_EQ(encoded.second, (std::vector<float>{1.0f, -0.5f}));
}

TEST(CMidSideMatrix, RampCrossfadesPerSample)
{
    CMidSideMatrix matrix;
    const auto ramp = Ramp(0.0f, 0.25f, 0.125f);
    matrix.SetMode(&ramp, 0);
    const std::vector<float> left{1, 2, 3, 4};
    const std::vector<float> right{-1, 5, 0.5f, 8};
    const SPair encoded = Encode(matrix, left, right);

    // p: 0, then slopes 0.375, 0.5, 0.625: the bend is taken up before the slope moves the value.
    const std::array<double, 4> p{0.0, 0.375, 0.875, 1.5};
    for (std::size_t i = 0; i < 4; ++i)
    {
        const double s = p[i] - 1.0;
        const double l = static_cast<double>(left[i]);
        const double r = static_cast<double>(right[i]);
        EXPECT_DOUBLE_EQ(static_cast<double>(encoded.first[i]), ((s + 1) * r + (1 - s) * l) * 0.5) << i;
        EXPECT_DOUBLE_EQ(static_cast<double>(encoded.second[i]), ((1 - s) * r - (s + 1) * l) * 0.5) << i;
    }
}

TEST(CMidSideMatrix, AfterARampTheValueRestsWhereItEnded)
{
    CMidSideMatrix matrix;
    const auto ramp = Ramp(0.0f, 0.25f);
    matrix.SetMode(&ramp, 0);
    matrix.Skip(4);
    matrix.Rest();
    matrix.SetMode(nullptr, 0);

    const SPair encoded = Encode(matrix, {1.0f, 1.0f}, {3.0f, 3.0f});
    EXPECT_EQ(encoded.first, (std::vector<float>{2.0f, 2.0f}));
}

TEST(CMidSideMatrix, StreamsWithoutDataReadAsZerosAndAreNotWritten)
{
    CMidSideMatrix matrix;
    matrix.SetMode(1.0f);
    std::vector<float> right{2.0f};
    const CAudioStream none(nullptr, 0, 1, 1);
    const CAudioStream stream(right.data(), 0, 1, 1);
    float mid = 0.0f;
    float side = 0.0f;
    matrix.Encode(none, stream, 0, 1, &mid, &side);
    EXPECT_EQ(mid, 1.0f);
    EXPECT_EQ(side, 1.0f);

    CAudioStream noneOut(nullptr, 0, 1, 1);
    CAudioStream streamOut(right.data(), 0, 1, 1);
    matrix.Decode(noneOut, streamOut, 0, 1);
    EXPECT_EQ(right[0], 2.0f);
}

RC_GTEST_PROP(CMidSideMatrix, DecodingUndoesEncodingAlongAnyRamp, ())
{
    const auto number = [](int low, int high, double scale)
    { return static_cast<float>(static_cast<double>(*rc::gen::inRange(low, high)) / scale); };
    const auto ramp = Ramp(number(0, 1000, 1000.0), number(-100, 100, 1e4), number(-10, 10, 1e6));
    CMidSideMatrix matrix;
    matrix.SetMode(&ramp, 0);
    CMidSideMatrix back = matrix;
    std::vector<float> left;
    std::vector<float> right;
    for (int i = 0; i < 50; ++i)
    {
        left.push_back(number(-1000, 1001, 1000.0));
        right.push_back(number(-1000, 1001, 1000.0));
    }

    SPair encoded = Encode(matrix, left, right);
    CAudioStream first(encoded.first.data(), 0, 50, 1);
    CAudioStream second(encoded.second.data(), 0, 50, 1);
    back.Decode(first, second, 0, 50);

    for (std::size_t i = 0; i < 50; ++i)
    {
        RC_ASSERT(std::abs(encoded.first[i] - left[i]) < 1e-6f);
        RC_ASSERT(std::abs(encoded.second[i] - right[i]) < 1e-6f);
    }
}
