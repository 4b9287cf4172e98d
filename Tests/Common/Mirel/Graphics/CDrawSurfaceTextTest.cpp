#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CTextDrawer.h"
#include "Mirel/Graphics/CTextLayout.h"

#include "Changes.h"
#include "TextCanvas.h"

#include <cairo.h>
#include <cmath>
#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Graphics;
using Tests::CCanvas;
using Tests::Describe;
using Tests::GetFonts;
using Tests::GetInk;
using Tests::Holds;

namespace
{

constexpr CSize extent = {160, 120};

class CTextTest : public testing::Test
{
public:
    CTextTest() { canvas->SetFont(GetFonts().GetFont(Describe(16))); }

protected:
    CRect Ink() const { return GetInk(canvas, extent); }

    /// What the text paints into a canvas of its own.
    CRect InkInRect(const char* text, const CRect& rect, const CTextFormat& format, float escapement = 0.0F)
    {
        CCanvas own(extent.width, extent.height);
        own->SetFont(GetFonts().GetFont(Describe(16, escapement)));
        own->DrawTextInRect(text, rect, format);
        return GetInk(own, extent);
    }

    CCanvas canvas{extent.width, extent.height};
};

constexpr std::uint32_t inRect = CTextFormat::wordBreak;

} // namespace

TEST_F(CTextTest, TextStandsBelowItsPoint)
{
    canvas->DrawText("Hold", {20, 30});
    // An H is 1493 of 2048 units high and ends on the baseline, 15 pixels below the point.
    const CRect ink = Ink();
    EXPECT_NEAR(ink.y, 30 + 15 - 12, 1);
    EXPECT_EQ(ink.y + ink.height, 30 + 15);
    EXPECT_NEAR(ink.x, 21, 1);
}

TEST_F(CTextTest, PenColoursTheText)
{
    canvas->SetPenColor({200, 100, 50});
    canvas->DrawText("\xe2\x96\x88", {20, 30});
    EXPECT_EQ(canvas.At(24, 40), 0xffc86432U);
}

TEST_F(CTextTest, ExtentsAreRoundedUp)
{
    const CSize size = canvas->GetTextExtent("0000000000");
    EXPECT_EQ(size.width, static_cast<int>(std::ceil(160 * 1303.0 / 2048.0)));
    EXPECT_EQ(size.height, 19);
    EXPECT_EQ(canvas->GetTextExtentUnrotated("0000000000"), size);
}

TEST_F(CTextTest, ExtentIsTurnedByTheEscapement)
{
    const CSize size = canvas->GetTextExtent("Frequency");
    canvas->SetFont(GetFonts().GetFont(Describe(16, 90.0F)));
    EXPECT_EQ(canvas->GetTextExtent("Frequency"), (CSize{size.height, size.width}));
    EXPECT_EQ(canvas->GetTextExtentUnrotated("Frequency"), size);
}

TEST_F(CTextTest, ExtentInARectangleNeedsTheCalculateBit)
{
    const CRect rect = {0, 0, 60, 100};
    EXPECT_EQ(canvas->GetTextExtentInRect("one two three", rect, {inRect, {}, {}}), CSize());
    EXPECT_EQ(canvas->GetTextExtentInRect("one two three", rect, {CTextFormat::calculate, {}, {}}),
              canvas->GetTextExtent("one two three"));
    const CSize lines = canvas->GetTextExtentInRect(
        "one two three", rect, {CTextFormat::calculate | CTextFormat::multiline, {}, {}});
    EXPECT_LE(lines.width, 60);
    EXPECT_GE(lines.height, 2 * 19);
}

TEST_F(CTextTest, WithoutAFontNothingIsDrawn)
{
    canvas->SetFont(nullptr);
    canvas->DrawText("Hold", {0, 0});
    canvas->DrawTextInRect("Hold", {0, 0, 80, 80}, {});
    EXPECT_EQ(canvas.CountPainted(), 0);
    EXPECT_EQ(canvas->GetTextExtent("Hold"), CSize());
    EXPECT_EQ(canvas->GetTextExtentUnrotated("Hold"), CSize());
}

TEST_F(CTextTest, TextThatIsNotUtf8IsNotDrawnAndHasNoExtent)
{
    for (const char* text : {"caf\xe9", "\xff", "", "\xc3"})
    {
        canvas->DrawText(text, {0, 0});
        canvas->DrawTextInRect(text, {0, 0, 80, 80}, {});
        EXPECT_EQ(canvas->GetTextExtent(text), CSize());
    }
    canvas->DrawText(nullptr, {0, 0});
    canvas->DrawTextInRect(nullptr, {0, 0, 80, 80}, {});
    EXPECT_EQ(canvas->GetTextExtent(nullptr), CSize());
    EXPECT_EQ(canvas.CountPainted(), 0);
}

TEST_F(CTextTest, SurfaceWithoutAContextIgnoresTexts)
{
    CDrawSurface none(nullptr);
    none.SetFont(GetFonts().GetFont(Describe(16)));
    none.DrawText("Hold", {0, 0});
    none.DrawTextInRect("Hold", {0, 0, 10, 10}, {});
    EXPECT_GT(none.GetTextExtent("Hold").width, 20);
    EXPECT_EQ(none.GetDeviceScale(), 1);
}

TEST_F(CTextTest, WithoutBit0NothingIsDrawnInARectangle)
{
    EXPECT_TRUE(InkInRect("Hold", {0, 0, 100, 100}, {0, {}, {}}).IsEmpty());
    EXPECT_TRUE(InkInRect("Hold", {0, 0, 100, 100}, {CTextFormat::multiline, {}, {}}).IsEmpty());
    EXPECT_FALSE(InkInRect("Hold", {0, 0, 100, 100}, {inRect, {}, {}}).IsEmpty());
}

TEST_F(CTextTest, TextIsClippedToItsRectangleUnlessToldNotTo)
{
    const CRect rect = {10, 10, 30, 12};
    canvas->DrawTextInRect("Frequency", rect, {});
    EXPECT_TRUE(Holds(rect, Ink()));
    canvas->SetTextNoClip(true);
    canvas->DrawTextInRect("Frequency", rect, {});
    EXPECT_GT(Ink().width, 60);
}

TEST_F(CTextTest, ClipOriginAndFontOutliveADrawing)
{
    const CRect clip = canvas->GetClipBox();
    canvas->Translate({3, 4});
    canvas->DrawTextInRect("Frequency", {10, 10, 30, 12}, {});
    canvas->DrawText("Frequency", {10, 10});
    EXPECT_EQ(canvas->GetTranslation(), (CPoint{3, 4}));
    canvas->Translate({-3, -4});
    EXPECT_EQ(canvas->GetClipBox(), clip);
    canvas->SaveState();
    const CSharedFont other = GetFonts().GetFont(Describe(20));
    canvas->SetFont(other);
    canvas->RestoreState();
    EXPECT_EQ(canvas->GetFont(), other);
}

TEST_F(CTextTest, AlignmentPlacesTheTextInItsRectangle)
{
    const CRect rect = {20, 10, 120, 100};
    const auto ink = [&](ETextVAlign v, ETextHAlign h) { return InkInRect("HHH", rect, {inRect, v, h}); };
    EXPECT_NEAR(ink(ETextVAlign::Top, ETextHAlign::Left).x, 21, 1);
    const CRect right = ink(ETextVAlign::Bottom, ETextHAlign::Right);
    EXPECT_NEAR(right.x + right.width, 139, 2);
    // The descent lies between the baseline and the bottom.
    EXPECT_NEAR(right.y + right.height, 110 - 16 * 483.0 / 2048.0, 1);
    const CRect center = ink(ETextVAlign::Center, ETextHAlign::Center);
    EXPECT_NEAR(center.x + center.width / 2.0, 80, 1);
    EXPECT_NEAR(center.y + center.height, 60 - 16 * 2384.0 / 2048.0 / 2 + 16 * 1901.0 / 2048.0, 1);
}

TEST_F(CTextTest, TurnedTextStaysInsideOfItsRectangle)
{
    const CRect rect = {30, 10, 100, 100};
    canvas->SetTextNoClip(true);
    for (const float escapement : {0.0F, 30.0F, 45.0F, 90.0F, 120.0F, 135.0F, 180.0F, 200.0F, 225.0F, 270.0F,
                                   300.0F, 315.0F, 359.0F, -90.0F})
    {
        CCanvas own(extent.width, extent.height);
        own->SetFont(GetFonts().GetFont(Describe(16, escapement)));
        own->SetTextNoClip(true);
        own->DrawTextInRect("Level", rect, {inRect, ETextVAlign::Center, ETextHAlign::Center});
        const CRect ink = GetInk(own, extent);
        EXPECT_FALSE(ink.IsEmpty()) << escapement;
        EXPECT_TRUE(Holds(rect, ink)) << escapement;
    }
}

TEST_F(CTextTest, QuarterTurnReadsUpward)
{
    const CTextFormat format = {inRect, ETextVAlign::Center, ETextHAlign::Center};
    const CRect rect = {40, 5, 60, 110};
    const CRect level = InkInRect("Level", rect, format);
    const CRect upright = InkInRect("Level", rect, format, 90.0F);
    EXPECT_NEAR(upright.width, level.height, 1);
    EXPECT_NEAR(upright.height, level.width, 2);
    // It begins below: the one mark of "i" lies in the lower part of the whole.
    const CRect start = InkInRect("i    ", rect, {inRect, ETextVAlign::Center, ETextHAlign::Left}, 90.0F);
    EXPECT_GT(start.y, 60);
}

TEST_F(CTextTest, NoAntiAliasGivesNoGreys)
{
    CFontDescription description = Describe(16);
    description.quality = EFontQuality::NoAntiAlias;
    canvas->SetFont(GetFonts().GetFont(description));
    canvas->DrawText("Frequency", {2, 2});
    EXPECT_GT(canvas.CountPainted(), 50);
    for (int i = 0; i < extent.width * extent.height; ++i)
    {
        const int alpha = canvas.AlphaAt(i % extent.width, i / extent.width);
        EXPECT_TRUE(alpha == 0 || alpha == 255);
    }
}

TEST_F(CTextTest, LineBreaksAreBlanksInASingleLine)
{
    const auto width = [&](const char* text) { return canvas->GetTextExtent(text).width; };
    for (const char* text : {"one\ntwo", "one\rtwo", "one\r\ntwo", "one\ttwo", "one\x01two"})
    {
        EXPECT_EQ(width(text), width("one two"));
        EXPECT_EQ(canvas->GetTextExtent(text).height, 19);
    }
}

TEST_F(CTextTest, MultilineTextBreaksAtItsLineBreaksAndBetweenWords)
{
    const CRect rect = {10, 10, 90, 100};
    const auto lines = [&](const char* text, std::uint32_t flags)
    {
        const auto layout = canvas->GetFont()->LayOut(text, {flags, rect.width});
        return layout == nullptr ? 0 : layout->GetLineCount();
    };
    EXPECT_EQ(lines("one\ntwo\r\nthree\rfour", CTextFormat::multiline), 4);
    EXPECT_EQ(lines("gain level hold", CTextFormat::multiline), 2);
    EXPECT_EQ(lines("gain level hold", CTextFormat::multiline | CTextFormat::noWrap), 1);
    EXPECT_EQ(lines("gain level hold", 0), 1);
    EXPECT_EQ(lines("gain\nlevel hold", 0), 1);
    // A word wider than the rectangle is broken anywhere.
    EXPECT_GT(lines("WWWWWWWWWWWWWWWW", CTextFormat::multiline), 2);
    const CRect ink = InkInRect("one\ntwo\nthree", rect, {inRect | CTextFormat::multiline, {}, {}});
    EXPECT_GT(ink.height, 2 * 19);
}

TEST_F(CTextTest, LinesAreAlignedOneByOne)
{
    const CTextFormat format = {inRect | CTextFormat::multiline, ETextVAlign::Top, ETextHAlign::Right};
    canvas->DrawTextInRect("HHHHHH\nH", {0, 0, 120, 60}, format);
    bool leftOfSecondLine = false;
    bool rightOfSecondLine = false;
    for (int y = 22; y < 40; ++y)
    {
        for (int x = 0; x < 120; ++x)
        {
            (x < 100 ? leftOfSecondLine : rightOfSecondLine) |= canvas.At(x, y) != 0;
        }
    }
    EXPECT_FALSE(leftOfSecondLine);
    EXPECT_TRUE(rightOfSecondLine);
}

TEST_F(CTextTest, EllipsisStandsForWhatDoesNotFit)
{
    const auto width = [&](int room) {
        return canvas->GetFont()->LayOut("Frequency response", {CTextFormat::ellipsis, room})->GetWidth();
    };
    EXPECT_LE(width(80), 80.0);
    EXPECT_GT(width(80), 50.0);
    EXPECT_EQ(std::ceil(width(1000)), canvas->GetTextExtent("Frequency response").width);
    EXPECT_LE(width(0), 20.0);
}

TEST_F(CTextTest, ExtremePlacesAndRectanglesDoNoHarm)
{
    for (const int far : {INT32_MIN, INT32_MIN / 2, -40000, 40000, INT32_MAX / 2, INT32_MAX})
    {
        canvas->DrawText("Hold", {far, far});
        for (const std::uint32_t flags :
             {inRect, inRect | CTextFormat::multiline, inRect | CTextFormat::ellipsis})
        {
            canvas->DrawTextInRect("Hold it", {0, 0, far, far},
                                   {flags, ETextVAlign::Center, ETextHAlign::Right});
            canvas->DrawTextInRect("Hold it", {far, far, 10, 10}, {flags, {}, {}});
        }
    }
    EXPECT_EQ(cairo_status(canvas->GetNativeContext()), CAIRO_STATUS_SUCCESS);
}

TEST_F(CTextTest, TextIsTheSameInLayersAndOnOtherOrigins)
{
    CCanvas moved(extent.width, extent.height);
    moved->SetFont(canvas->GetFont());
    moved->Translate({-7, 11});
    moved->DrawText("Level", {27, 9});
    CLayer layer({100, 40});
    const auto surface = layer.CreateSurface();
    surface->SetFont(canvas->GetFont());
    surface->DrawText("Level", {0, 0});
    CCanvas over(extent.width, extent.height);
    over->DrawLayer(layer, {20, 20});
    canvas->DrawText("Level", {20, 20});
    for (int i = 0; i < extent.width * extent.height; ++i)
    {
        const int x = i % extent.width;
        const int y = i / extent.width;
        ASSERT_EQ(moved.At(x, y), canvas.At(x, y));
        ASSERT_EQ(over.At(x, y), canvas.At(x, y));
    }
}

TEST(CTextDrawer, SettersCompareAndRaiseTheChange)
{
    CTextDrawer drawer;
    drawer.SetSize({80, 20});
    Tests::CChanges changes(drawer);
    const CSharedFont font = GetFonts().GetFont(Describe(16));
    const CTextFormat format = {inRect, ETextVAlign::Center, ETextHAlign::Center};
    for (int i = 0; i < 2; ++i)
    {
        drawer.SetText("Level");
        drawer.SetColor({1, 2, 3});
        drawer.SetFont(font);
        drawer.SetFormat(format);
    }
    EXPECT_EQ(changes.areas, (std::vector<CRect>(4, {0, 0, 80, 20})));
    EXPECT_EQ(drawer.GetText(), "Level");
    EXPECT_EQ(drawer.GetFont(), font);
    EXPECT_EQ(drawer.GetFormat(), format);
    EXPECT_EQ(drawer.GetColor(), (CColor{1, 2, 3}));
    drawer.SetText(nullptr);
    EXPECT_EQ(drawer.GetText(), "");
}

TEST(CTextDrawer, DrawsInItsAreaAndKnowsItsNaturalSize)
{
    CTextDrawer drawer;
    drawer.SetSize({100, 40});
    EXPECT_EQ(drawer.GetNaturalSize(), CSize());
    CCanvas canvas(extent.width, extent.height);
    drawer.Draw(*canvas, nullptr);
    EXPECT_EQ(canvas.CountPainted(), 0);
    drawer.SetText("Level and gain");
    drawer.SetFont(GetFonts().GetFont(Describe(16)));
    drawer.SetColor({255, 0, 0});
    canvas->SetFont(drawer.GetFont());
    EXPECT_EQ(drawer.GetNaturalSize(), canvas->GetTextExtent("Level and gain"));
    drawer.Draw(*canvas, nullptr);
    EXPECT_TRUE(Holds({0, 0, 100, 40}, GetInk(canvas, extent)));
    EXPECT_EQ(canvas->GetPenColor(), (CColor{255, 0, 0}));
    drawer.SetFormat({inRect | CTextFormat::multiline, {}, {}});
    EXPECT_LE(drawer.GetNaturalSize(60).width, 60);
    EXPECT_GE(drawer.GetNaturalSize(60).height, 38);
    EXPECT_EQ(drawer.GetNaturalSize().height, 19);
}
