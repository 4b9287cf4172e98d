#include "Mirel/GUI/CRecursiveGraphics.h"

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <cstdint>
#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;
using Mirel::Graphics::CDIBBitmap;
using Mirel::Graphics::CSimple2DRegion;

namespace
{

constexpr int side = 40;

/// A white picture that a tree is drawn on.
class CCanvas
{
public:
    CCanvas() : bitmap(32, {side, side})
    {
        const auto surface = bitmap.CreateSurface();
        surface->SetFillColor({255, 255, 255});
        surface->FillRect({0, 0, side, side});
    }

    void Draw(CLightWidget& widget, const CRect& box = {0, 0, side, side})
    {
        const CSimple2DRegion region(box);
        const auto surface = bitmap.CreateSurface();
        widget.GetRecursiveGraphics().Draw(*surface, &region);
    }

    std::uint32_t At(int x, int y) const
    {
        return reinterpret_cast<const std::uint32_t*>(bitmap.GetData())[y * side + x] & 0xFFFFFFU;
    }

    CDIBBitmap bitmap;
};

/// A parent filled with red, a green child over a part of it.
struct CPair
{
    CPair()
    {
        child.Move({10, 10});
        parent.AddChild(&child);
    }

    CFill* red = new CFill({side, side}, {255, 0, 0});
    CFill* green = new CFill({10, 10}, {0, 255, 0});
    CLightWidget parent{nullptr, red, true};
    CLightWidget child{nullptr, green, true};
};

/// Of two components, opaque over opaque: how much of a stands over b, as the eye would compute it.
int Blend(int a, int b, double share)
{
    return static_cast<int>(a * share + b * (1.0 - share) + 0.5);
}

void ExpectNear(std::uint32_t color, int r, int g, int b)
{
    EXPECT_NEAR(static_cast<int>(color >> 16U), r, 1);
    EXPECT_NEAR(static_cast<int>((color >> 8U) & 255U), g, 1);
    EXPECT_NEAR(static_cast<int>(color & 255U), b, 1);
}

} // namespace

TEST(CRecursiveGraphics, DrawsTheWidgetAndThenItsChildrenBackToFront)
{
    CPair tree;
    CLightWidget top(&tree.parent, new CFill({5, 5}, {0, 0, 255}), true);
    top.Move({12, 12});
    CCanvas canvas;
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(0, 0), 0xFF0000U);
    EXPECT_EQ(canvas.At(10, 10), 0x00FF00U);
    EXPECT_EQ(canvas.At(12, 12), 0x0000FFU);
    EXPECT_EQ(canvas.At(19, 19), 0x00FF00U);
    EXPECT_EQ(canvas.At(20, 20), 0xFF0000U);
}

TEST(CRecursiveGraphics, DrawsNothingOutsideOfTheRegion)
{
    CPair tree;
    CCanvas canvas;
    canvas.Draw(tree.parent, {5, 5, 10, 10});
    EXPECT_EQ(canvas.At(4, 4), 0xFFFFFFU);
    EXPECT_EQ(canvas.At(5, 5), 0xFF0000U);
    EXPECT_EQ(canvas.At(14, 14), 0x00FF00U);
    EXPECT_EQ(canvas.At(15, 15), 0xFFFFFFU);
    EXPECT_EQ(tree.green->lastBounds, CRect(0, 0, 5, 5));
}

TEST(CRecursiveGraphics, ChildrenOutsideOfTheRegionAreNotDrawn)
{
    CPair tree;
    CCanvas canvas;
    canvas.Draw(tree.parent, {0, 0, 10, 10});
    EXPECT_EQ(tree.red->TakeDraws(), 1);
    EXPECT_EQ(tree.green->TakeDraws(), 0);
}

TEST(CRecursiveGraphics, HiddenChildrenAndTheirsAreNotDrawn)
{
    CPair tree;
    auto* const below = new CFill({5, 5}, {0, 0, 255});
    CLightWidget grandchild(&tree.child, below, true);
    tree.child.Show(false);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    EXPECT_EQ(tree.green->TakeDraws(), 0);
    EXPECT_EQ(below->TakeDraws(), 0);
}

TEST(CRecursiveGraphics, ChildrenAreCutOffAtTheirParentsEdge)
{
    CPair tree;
    CLightWidget wide(&tree.child, new CFill({100, 100}, {0, 0, 255}), true);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(19, 19), 0x0000FFU);
    EXPECT_EQ(canvas.At(20, 19), 0xFF0000U);
}

TEST(CRecursiveGraphics, OpacityOfAParentBlendsTheSubtreeOnce)
{
    CPair tree;
    tree.parent.SetOpacity(0.5F);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    // 0.5 * 255 + 0.5 without its fraction.
    const double share = 128.0 / 255.0;
    ExpectNear(canvas.At(0, 0), 255, Blend(0, 255, share), Blend(0, 255, share));
    // The red under the child does not show through it.
    ExpectNear(canvas.At(15, 15), Blend(0, 255, share), 255, Blend(0, 255, share));
    EXPECT_EQ(tree.red->TakeDraws(), 1);
    EXPECT_EQ(tree.green->TakeDraws(), 1);
}

TEST(CRecursiveGraphics, OpacityOfAChildAloneShowsTheParentThroughIt)
{
    CPair tree;
    tree.child.SetOpacity(0.25F);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    const double share = 64.0 / 255.0;
    ExpectNear(canvas.At(15, 15), Blend(0, 255, share), Blend(255, 0, share), 0);
}

TEST(CRecursiveGraphics, FullyTransparentWidgetsAreNotSeen)
{
    CPair tree;
    tree.parent.SetOpacity(0.0F);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(15, 15), 0xFFFFFFU);
}

TEST(CRecursiveGraphics, TransparentPartsOfATranslucentWidgetStayClear)
{
    CLightWidget parent(nullptr, new CFill({0, 0}, {0, 0, 0}), true);
    parent.SetGraphics(nullptr, false);
    parent.SetSize({side, side});
    CLightWidget child(&parent, new CFill({10, 10}, {0, 255, 0}), true);
    parent.SetOpacity(0.5F);
    CCanvas canvas;
    canvas.Draw(parent);
    EXPECT_EQ(canvas.At(20, 20), 0xFFFFFFU);
    EXPECT_NE(canvas.At(5, 5), 0xFFFFFFU);
}

TEST(CRecursiveGraphics, BufferedWidgetDrawsItsSubtreeOnlyAfterAChange)
{
    CPair tree;
    tree.parent.SetBuffered(true);
    CCanvas canvas;
    canvas.Draw(tree.parent, {0, 0, 5, 5});
    EXPECT_EQ(tree.red->TakeDraws(), 1);
    EXPECT_EQ(tree.green->TakeDraws(), 1);
    canvas.Draw(tree.parent);
    canvas.Draw(tree.parent);
    EXPECT_EQ(tree.red->TakeDraws(), 0);
    EXPECT_EQ(tree.green->TakeDraws(), 0);
    EXPECT_EQ(canvas.At(15, 15), 0x00FF00U);
}

TEST(CRecursiveGraphics, AnyChangeBelowABufferedWidgetShows)
{
    CPair tree;
    CLightWidget grandchild(&tree.child, new CFill({5, 5}, {0, 0, 255}), true);
    tree.parent.SetBuffered(true);
    CCanvas canvas;
    canvas.Draw(tree.parent);

    grandchild.Move({2, 2});
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(10, 10), 0x00FF00U);
    EXPECT_EQ(canvas.At(16, 16), 0x0000FFU);

    grandchild.Show(false);
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(16, 16), 0x00FF00U);

    tree.green->SetColor({255, 255, 0});
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(16, 16), 0xFFFF00U);

    tree.child.SetOpacity(0.0F);
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(16, 16), 0xFF0000U);

    tree.child.SetOpacity(1.0F);
    tree.green->SetSize({2, 2});
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(11, 11), 0xFFFF00U);
    EXPECT_EQ(canvas.At(12, 12), 0xFF0000U);

    CLightWidget added(&tree.parent, new CFill({4, 4}, {1, 2, 3}), true);
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(1, 1), 0x010203U);
    tree.parent.RemoveChild(&added);
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(1, 1), 0xFF0000U);
    {
        CLightWidget passing(&tree.parent, new CFill({4, 4}, {1, 2, 3}), true);
        canvas.Draw(tree.parent);
        EXPECT_EQ(canvas.At(1, 1), 0x010203U);
    }
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(1, 1), 0xFF0000U);
}

TEST(CRecursiveGraphics, ChangeWhileHiddenShowsLater)
{
    CPair tree;
    tree.child.SetBuffered(true);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    tree.parent.Show(false);
    tree.green->SetColor({0, 0, 255});
    tree.parent.Show(true);
    canvas.Draw(tree.parent);
    EXPECT_EQ(canvas.At(15, 15), 0x0000FFU);
}

TEST(CRecursiveGraphics, MovingOrFadingABufferedWidgetDrawsNothingAnew)
{
    CPair tree;
    tree.child.SetBuffered(true);
    CCanvas canvas;
    canvas.Draw(tree.parent);
    tree.green->TakeDraws();
    tree.child.Move({20, 20});
    tree.child.SetOpacity(0.5F);
    canvas.Draw(tree.parent);
    EXPECT_EQ(tree.green->TakeDraws(), 0);
    ExpectNear(canvas.At(25, 25), Blend(0, 255, 128.0 / 255.0), Blend(255, 0, 128.0 / 255.0), 0);
}

TEST(CRecursiveGraphics, KeptPictureIsAsFineAsTheSurface)
{
    CPair tree;
    tree.parent.SetBuffered(true);
    tree.child.Move({0, 0});
    tree.green->SetSize({1, 1});
    CDIBBitmap bitmap(32, {2 * side, 2 * side});
    {
        const auto surface = bitmap.CreateSurface();
        surface->Scale(2.0);
        tree.parent.GetRecursiveGraphics().Draw(*surface, nullptr);
    }
    const auto at = [&bitmap](int x, int y)
    { return reinterpret_cast<const std::uint32_t*>(bitmap.GetData())[y * 2 * side + x] & 0xFFFFFFU; };
    EXPECT_EQ(at(0, 0), 0x00FF00U);
    EXPECT_EQ(at(1, 1), 0x00FF00U);
    EXPECT_EQ(at(2, 1), 0xFF0000U);
    EXPECT_EQ(at(79, 79), 0xFF0000U);
}

TEST(CRecursiveGraphics, SizesBeyondAllBoundsDrawNothingAndDoNoHarm)
{
    CLightWidget widget(nullptr, new CFill({INT32_MAX, INT32_MAX}, {1, 2, 3}), true);
    CLightWidget child(&widget, new CFill({INT32_MAX, INT32_MAX}, {3, 2, 1}), true);
    child.Move({INT32_MIN, INT32_MAX});
    CCanvas canvas;
    canvas.Draw(widget);
    EXPECT_EQ(canvas.At(0, 0), 0x010203U);
    widget.SetBuffered(true);
    canvas.Draw(widget);
    widget.SetBuffered(false);
    widget.SetOpacity(0.5F);
    canvas.Draw(widget);
    EXPECT_EQ(canvas.At(0, 0), 0x010203U);
}
