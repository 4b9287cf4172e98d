// Pictures that were looked at and found good, kept in Tests/Data/graphics. What is painted now is left in
// the build folder under the same name: if a change is meant, look at it and copy it over.

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CTextDrawer.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Mirel/Graphics/Premultiply.h"
#include "PngFile.h"
#include "TextCanvas.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Mirel::Graphics;
using Tests::CCanvas;
using Tests::GetFonts;

namespace
{

constexpr CColor ground = {24, 28, 36};
constexpr CColor ink = {220, 225, 230};

void Clear(CDrawSurface& surface, CSize size)
{
    surface.SetFillColor(ground);
    surface.FillRect({CPoint(), size});
    surface.SetPenColor(ink);
}

/// Another release of the font renderer may smooth an edge otherwise, but not move or change a glyph: single
/// bytes may differ by a quarter of the range, and the whole by little.
void CompareToReference(const CCanvas& canvas, CSize size, const std::string& name)
{
    constexpr int maxDifference = 64;
    constexpr double maxMean = 0.5;
    ASSERT_TRUE(Tests::WritePng(PAINTED_PICTURES "/" + name, size.width, size.height, false,
                                [&](int x, int y) { return canvas.At(x, y); }));
    const CSharedImage reference =
        ReadImageFile((REFERENCE_PICTURES "/" + name).c_str(), std::int64_t{size.width} * size.height);
    ASSERT_NE(reference, nullptr) << "painted: " << PAINTED_PICTURES "/" << name;
    ASSERT_EQ(reference->GetSize(), size);
    const CBitmapContext& pixels = *reference->GetContext();
    int greatest = 0;
    double sum = 0.0;
    for (int i = 0; i < size.width * size.height; ++i)
    {
        const int x = i % size.width;
        const int y = i / size.width;
        const CColor expected =
            ColorOf(LoadPixel(pixels.GetData() + std::int64_t{pixels.GetStride()} * y, x));
        const CColor painted = ColorOf(canvas.At(x, y));
        for (const int difference : {painted.r - expected.r, painted.g - expected.g, painted.b - expected.b})
        {
            greatest = std::max(greatest, std::abs(difference));
            sum += std::abs(difference);
        }
    }
    EXPECT_LE(greatest, maxDifference) << name;
    EXPECT_LE(sum / (3.0 * size.width * size.height), maxMean) << name;
}

} // namespace

TEST(ReferencePictures, Faces)
{
    constexpr CSize size = {480, 250};
    CCanvas canvas(size.width, size.height);
    Clear(*canvas, size);
    int y = 4;
    for (const int height : {9, 10, 11, 12, 13, 14, 16, 20})
    {
        canvas->SetFont(GetFonts().GetFont(Tests::Describe(height)));
        const std::string text = std::to_string(height) + " px: Threshold -12.5 dB, 1.00 kHz";
        canvas->DrawText(text.c_str(), {6, y});
        y += height + 6;
    }
    for (int i = 0; i < 4; ++i)
    {
        CFontDescription description = Tests::Describe(14);
        description.weight = i % 2 == 0 ? 400 : CFontDescription::boldWeight;
        description.italic = i > 1;
        description.underline = i == 3;
        canvas->SetFont(GetFonts().GetFont(description));
        canvas->DrawText("\xc3\x84g\xc3\xa4is 0\xc2\xb0", {6 + 110 * i, y + 2});
    }
    CFontDescription plain = Tests::Describe(14);
    plain.quality = EFontQuality::NoAntiAlias;
    canvas->SetFont(GetFonts().GetFont(plain));
    canvas->DrawText("without smoothing 0123", {6, y + 28});
    CompareToReference(canvas, size, "faces.png");
}

TEST(ReferencePictures, TextInRectangles)
{
    constexpr CSize size = {480, 310};
    CCanvas canvas(size.width, size.height);
    Clear(*canvas, size);
    const auto draw = [&](const char* text, const CRect& rect, const CTextFormat& format, float escapement)
    {
        canvas->SetPenColor({80, 80, 120});
        canvas->DrawRect(rect);
        canvas->SetPenColor(ink);
        canvas->SetFont(GetFonts().GetFont(Tests::Describe(12, escapement)));
        canvas->DrawTextInRect(text, rect, format);
    };
    constexpr std::uint32_t single = CTextFormat::wordBreak;
    int x = 4;
    for (int align = 0; align < 3; ++align)
    {
        draw("Level", {x, 4, 90, 60},
             {single, static_cast<ETextVAlign>(align), static_cast<ETextHAlign>(align)}, 0.0F);
        draw("Several words in as many lines as they need", {x, 70, 90, 60},
             {single | CTextFormat::multiline, static_cast<ETextVAlign>(align),
              static_cast<ETextHAlign>(align)},
             0.0F);
        x += 95;
    }
    draw("What does not fit is cut", {x, 4, 90, 20}, {single, ETextVAlign::Center, ETextHAlign::Left}, 0.0F);
    draw("What does not fit ends", {x, 30, 90, 20},
         {single | CTextFormat::ellipsis, ETextVAlign::Center, ETextHAlign::Left}, 0.0F);
    draw("one\ntwo", {x, 70, 90, 60},
         {single | CTextFormat::multiline, ETextVAlign::Center, ETextHAlign::Center}, 0.0F);
    int i = 0;
    for (const float escapement :
         {30.0F, 45.0F, 90.0F, 135.0F, 180.0F, 225.0F, 270.0F, 300.0F, 315.0F, -15.0F})
    {
        draw("Frequency", {4 + i % 5 * 95, 140 + i / 5 * 84, 90, 80},
             {single, ETextVAlign::Center, ETextHAlign::Center}, escapement);
        ++i;
    }
    CompareToReference(canvas, size, "text-in-rectangles.png");
}

TEST(ReferencePictures, Lines)
{
    constexpr CSize size = {480, 240};
    CCanvas canvas(size.width, size.height);
    Clear(*canvas, size);
    canvas->SetPenColor({50, 60, 70});
    for (int at = 0; at < size.width; at += 20)
    {
        canvas->DrawLine({at, 0}, {at, size.height - 1});
        canvas->DrawLine({0, at}, {size.width - 1, at});
    }
    canvas->SetPenColor({240, 180, 60});
    for (int i = 0; i < 36; ++i)
    {
        const double angle = i * 3.14159265358979 / 18.0;
        canvas->DrawLineF({100.0F, 120.0F}, {static_cast<float>(100.0 + 90.0 * std::cos(angle)),
                                             static_cast<float>(120.0 + 90.0 * std::sin(angle))});
    }
    canvas->SetPenColor({90, 220, 120});
    for (const double periods : {2.0, 40.0})
    {
        std::vector<CPointF> points;
        for (int x = 0; x < 260; ++x)
        {
            const double value = std::sin(x / 260.0 * periods * 2.0 * 3.14159265358979);
            points.push_back({static_cast<float>(210 + x),
                              static_cast<float>((periods < 10.0 ? 60.0 : 180.0) - 50.0 * value)});
        }
        canvas->DrawPolylineF(points.data(), static_cast<int>(points.size()));
    }
    CompareToReference(canvas, size, "lines.png");
}
