#include "Mirel/Graphics/TextPlacing.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <rapidcheck/gtest.h>

using namespace Mirel::Graphics;

namespace
{

struct CBounds
{
    double left;
    double top;
    double right;
    double bottom;
};

/// Of the turned box on the screen.
CBounds GetBounds(const CTurnedBox& box)
{
    const double c = std::cos(box.angle);
    const double s = std::sin(box.angle);
    CBounds bounds = {1e9, 1e9, -1e9, -1e9};
    for (const auto& [u, v] : std::array<std::pair<double, double>, 4>{
             {{0.0, 0.0}, {box.width, 0.0}, {0.0, box.height}, {box.width, box.height}}})
    {
        const double x = box.originX + c * u + s * v;
        const double y = box.originY - s * u + c * v;
        bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x),
                  std::max(bounds.bottom, y)};
    }
    return bounds;
}

} // namespace

/// Where a box fits at all, it touches all four sides of the rectangle.
RC_GTEST_PROP(TextPlacing, TurnedBoxFillsItsRectangle, ())
{
    const int degrees = *rc::gen::inRange(-720, 720);
    const double boxWidth = *rc::gen::inRange(1, 400);
    const double boxHeight = *rc::gen::inRange(1, 400);
    RC_PRE(degrees % 45 != 0 || degrees % 90 == 0);
    const double r = degrees * std::numbers::pi / 180.0;
    const double c = std::fabs(std::cos(r));
    const double s = std::fabs(std::sin(r));
    const CSize rect = {static_cast<int>(std::lround(c * boxWidth + s * boxHeight)),
                        static_cast<int>(std::lround(s * boxWidth + c * boxHeight))};
    const CTurnedBox box = TurnIn(rect, static_cast<float>(degrees), 12.0);
    // A rounded rectangle may have no box any more.
    RC_PRE(box.width >= 0.0 && box.height >= 0.0);
    const CBounds bounds = GetBounds(box);
    RC_ASSERT(std::fabs(bounds.left) < 1e-3);
    RC_ASSERT(std::fabs(bounds.top) < 1e-3);
    RC_ASSERT(std::fabs(bounds.right - rect.width) < 1e-3);
    RC_ASSERT(std::fabs(bounds.bottom - rect.height) < 1e-3);
}

TEST(TextPlacing, TextThatIsNotTurnedHasTheWholeRectangle)
{
    for (const float escapement :
         {0.0F, -0.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()})
    {
        const CTurnedBox box = TurnIn({80, 20}, escapement, 12.0);
        EXPECT_EQ(box.originX, 0.0);
        EXPECT_EQ(box.originY, 0.0);
        EXPECT_EQ(box.width, 80.0);
        EXPECT_EQ(box.height, 20.0);
        EXPECT_EQ(box.angle, 0.0);
    }
}

TEST(TextPlacing, EscapementOf45TakesTheHeightOfTheText)
{
    for (const float escapement : {45.0F, 135.0F, 225.0F, 315.0F, -45.0F})
    {
        const CTurnedBox box = TurnIn({100, 80}, escapement, 12.0);
        EXPECT_EQ(box.height, 12.0) << escapement;
        EXPECT_NEAR(box.width, 80.0 / std::sqrt(0.5) - 12.0, 1e-3) << escapement;
        EXPECT_TRUE(std::isfinite(box.originX) && std::isfinite(box.originY)) << escapement;
    }
}

TEST(TextPlacing, OriginMovesByQuadrant)
{
    const auto origin = [](float escapement)
    {
        const CTurnedBox box = TurnIn({100, 40}, escapement, 12.0);
        return std::pair(box.originX, box.originY);
    };
    EXPECT_NEAR(origin(90.0F).first, 0.0, 1e-3);
    EXPECT_NEAR(origin(90.0F).second, 40.0, 1e-3);
    EXPECT_NEAR(origin(180.0F).first, 100.0, 1e-3);
    EXPECT_NEAR(origin(180.0F).second, 40.0, 1e-3);
    EXPECT_NEAR(origin(270.0F).first, 100.0, 1e-3);
    EXPECT_NEAR(origin(270.0F).second, 0.0, 1e-3);
    EXPECT_NEAR(origin(-90.0F).first, 100.0, 1e-3);
}

TEST(TextPlacing, TurnedSizeIsThatOfTheBoxAround)
{
    EXPECT_EQ(GetTurnedSize({60, 15}, 0.0F), (CSize{60, 15}));
    EXPECT_EQ(GetTurnedSize({60, 15}, 90.0F), (CSize{15, 60}));
    EXPECT_EQ(GetTurnedSize({60, 15}, 180.0F), (CSize{60, 15}));
    // 0.866 * 60 + 0.5 * 15 and 0.5 * 60 + 0.866 * 15.
    EXPECT_EQ(GetTurnedSize({60, 15}, 30.0F), (CSize{60, 43}));
    EXPECT_EQ(GetTurnedSize({60, 15}, -30.0F), (CSize{60, 43}));
}

TEST(TextPlacing, BaselineFollowsTheAlignment)
{
    EXPECT_EQ(GetBaseline(40.0, 16.0, 12.0, ETextVAlign::Top), 12.0);
    EXPECT_EQ(GetBaseline(40.0, 16.0, 12.0, ETextVAlign::Center), 24.0);
    EXPECT_EQ(GetBaseline(40.0, 16.0, 12.0, ETextVAlign::Bottom), 36.0);
}
