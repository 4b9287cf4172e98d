#include "Mirel/Graphics/CPairRamp.h"

#include "Canvas.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;
using Tests::CCanvas;

namespace
{

constexpr CColor ground = {30, 200, 120};
constexpr CColor pen = {250, 10, 120};

double Mix(std::uint8_t under, std::uint8_t above, double coverage)
{
    return under + (above - under) * coverage;
}

bool IsNear(CColor found, double coverage)
{
    const auto isNear = [](std::uint8_t a, double b) { return std::fabs(a - b) <= 1.5; };
    return isNear(found.r, Mix(ground.r, pen.r, coverage)) &&
           isNear(found.g, Mix(ground.g, pen.g, coverage)) && isNear(found.b, Mix(ground.b, pen.b, coverage));
}

} // namespace

RC_GTEST_PROP(CPairRamp, CoverageChangesEvenlyFromTheFirstRowToTheLast, ())
{
    const auto share = [] { return static_cast<float>(*rc::gen::inRange(0, 101)) / 100.0F; };
    const int rows = *rc::gen::inRange(1, 129);
    const int distance = *rc::gen::inRange(1, 5);
    const CPairRamp::CCoverage first = {share(), share()};
    const CPairRamp::CCoverage last = rows == 1 ? first : CPairRamp::CCoverage{share(), share()};
    constexpr int width = 8;
    CCanvas canvas(width, rows);
    canvas->SetFillColor(ground);
    canvas->FillRect({0, 0, width, rows});
    CPairRamp(pen, first, last, rows).Draw(canvas.GetBitmap().GetData() + 4, 4 * width, distance);
    for (int y = 0; y < rows; ++y)
    {
        const float way = rows == 1 ? 0.0F : static_cast<float>(y) / static_cast<float>(rows - 1);
        for (int x = 0; x < width; ++x)
        {
            const int place = x - 1;
            const bool isBetween = place > 0 && place < distance;
            const float coverage = place == 0          ? first.left + (last.left - first.left) * way
                                   : place == distance ? first.right + (last.right - first.right) * way
                                   : isBetween         ? 1.0F
                                                       : 0.0F;
            RC_ASSERT(canvas.AlphaAt(x, y) == 255);
            RC_ASSERT(IsNear(ColorOf(canvas.At(x, y)), static_cast<double>(coverage)));
        }
    }
}

TEST(CPairRamp, PixelsThatAreNotCoveredStayWhatTheyAreAndCoveredOnesBecomeTheColour)
{
    CCanvas canvas(2, 3);
    canvas->SetFillColor(ground);
    canvas->FillRect({0, 0, 2, 3});
    CPairRamp(pen, {0.0F, 1.0F}, {0.0F, 1.0F}, 3).Draw(canvas.GetBitmap().GetData(), 8, 1);
    for (int y = 0; y < 3; ++y)
    {
        EXPECT_EQ(canvas.At(0, y), 0xff000000U | ground.Pack());
        EXPECT_EQ(canvas.At(1, y), 0xff000000U | pen.Pack());
    }
}
