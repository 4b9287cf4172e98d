#include "Mirel/Graphics/CFontManager.h"

#include "Mirel/Graphics/CTextLayout.h"
#include "Mirel/Graphics/Limits.h"
#include "Support/CTemporaryFolder.h"
#include "TextCanvas.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Graphics;
using Tests::Describe;
using Tests::GetFonts;

namespace
{

std::string GetOwnFolder()
{
    return GetFontsFolder(Tests::GetDataFolder());
}

double GetWidth(const CSharedFont& font, const char* text)
{
    const auto layout = font->LayOut(text, {});
    return layout == nullptr ? 0.0 : layout->GetWidth();
}

} // namespace

TEST(CFontManager, FontsFolderStandsInTheDataFolder)
{
    EXPECT_EQ(GetFontsFolder("/opt/Scope Bank data"), "/opt/Scope Bank data/Fonts");
}

TEST(CFontManager, ProductShipsFourFacesAndTheirLicence)
{
    for (const char* style : {"", "-Bold", "-Oblique", "-BoldOblique"})
    {
        EXPECT_TRUE(std::filesystem::is_regular_file(GetOwnFolder() + "/DejaVuSans" + style + ".ttf"));
    }
    EXPECT_TRUE(std::filesystem::is_regular_file(Tests::GetDataFolder() + "/Legal/DejaVu Fonts.txt"));
    EXPECT_EQ(GetFonts().GetProblem(), "");
}

TEST(CFontManager, SameDescriptionGivesTheSameFont)
{
    EXPECT_EQ(GetFonts().GetFont(Describe(13)), GetFonts().GetFont(Describe(13)));
    EXPECT_NE(GetFonts().GetFont(Describe(13)), GetFonts().GetFont(Describe(14)));
}

TEST(CFontManager, HeightIsInPixels)
{
    // The face's own table: ascent 1901 and descent 483 of 2048 units.
    const CSharedFont font = GetFonts().GetFont(Describe(16));
    EXPECT_NEAR(font->GetAscent(), 16 * 1901.0 / 2048.0, 0.02);
    EXPECT_NEAR(font->GetDescent(), 16 * 483.0 / 2048.0, 0.02);
    // A digit is 1303 units wide.
    EXPECT_NEAR(GetWidth(font, "0000000000"), 160 * 1303.0 / 2048.0, 0.1);
}

TEST(CFontManager, OnlyWeight700IsBold)
{
    CFontDescription description = Describe(16);
    const double plain = GetWidth(GetFonts().GetFont(description), "Threshold");
    description.weight = 600;
    EXPECT_DOUBLE_EQ(GetWidth(GetFonts().GetFont(description), "Threshold"), plain);
    description.weight = 700;
    EXPECT_GT(GetWidth(GetFonts().GetFont(description), "Threshold"), plain * 1.05);
}

TEST(CFontManager, ItalicAndUnderlineLookDifferent)
{
    const auto draw = [](const CFontDescription& description)
    {
        auto canvas = std::make_unique<Tests::CCanvas>(100, 30);
        (*canvas)->SetFont(GetFonts().GetFont(description));
        (*canvas)->DrawText("Hold", {2, 2});
        return canvas;
    };
    const auto differs = [](const Tests::CCanvas& a, const Tests::CCanvas& b)
    {
        bool same = true;
        for (int i = 0; i < 100 * 30; ++i)
        {
            same = same && a.At(i % 100, i / 100) == b.At(i % 100, i / 100);
        }
        return !same;
    };
    CFontDescription italic = Describe(16);
    italic.italic = true;
    CFontDescription underlined = Describe(16);
    underlined.underline = true;
    const auto plain = draw(Describe(16));
    EXPECT_TRUE(differs(*plain, *draw(italic)));
    EXPECT_TRUE(differs(*plain, *draw(underlined)));
    EXPECT_FALSE(differs(*plain, *draw(Describe(16))));
}

TEST(CFontManager, UnknownFaceFallsBackOnTheProductsOwn)
{
    CFontDescription unknown = Describe(16);
    unknown.face = "No Such Face Anywhere";
    EXPECT_DOUBLE_EQ(GetWidth(GetFonts().GetFont(unknown), "Threshold"),
                     GetWidth(GetFonts().GetFont(Describe(16)), "Threshold"));
}

TEST(CFontManager, SystemFaceIsFoundByItsName)
{
    CFontDescription mono = Describe(16);
    mono.face = "dejavu sans mono";
    const CSharedFont font = GetFonts().GetFont(mono);
    EXPECT_DOUBLE_EQ(GetWidth(font, "iiii"), GetWidth(font, "WWWW"));
}

TEST(CFontManager, HeightIsBounded)
{
    EXPECT_DOUBLE_EQ(GetFonts().GetFont(Describe(0))->GetAscent(),
                     GetFonts().GetFont(Describe(1))->GetAscent());
    EXPECT_DOUBLE_EQ(GetFonts().GetFont(Describe(-5))->GetAscent(),
                     GetFonts().GetFont(Describe(1))->GetAscent());
    EXPECT_DOUBLE_EQ(GetFonts().GetFont(Describe(1 << 30))->GetAscent(),
                     GetFonts().GetFont(Describe(CLimits::maxFontHeight))->GetAscent());
}

TEST(CFontManager, NumberOfFontsIsBounded)
{
    CFontManager manager(GetOwnFolder());
    const CSharedFont first = manager.GetFont(Describe(10));
    for (std::size_t i = 1; i < CLimits::maxFonts; ++i)
    {
        EXPECT_NE(manager.GetFont(Describe(10, static_cast<float>(i))), first);
    }
    EXPECT_EQ(manager.GetFont(Describe(11)), first);
}

TEST(CFontManager, FontsOutliveTheirManager)
{
    CSharedFont font;
    {
        CFontManager manager(GetOwnFolder());
        font = manager.GetFont(Describe(16));
    }
    EXPECT_GT(GetWidth(font, "Threshold"), 50.0);
}

TEST(CFontManager, MissingFolderIsToldAndTheSystemStandsIn)
{
    CFontManager manager("/no/such/folder");
    EXPECT_EQ(manager.GetProblem().find("Could not load font /no/such/folder/DejaVuSans.ttf"), 0U);
    const CSharedFont font = manager.GetFont(Describe(16));
    EXPECT_FALSE(font->IsEmpty());
    EXPECT_GT(GetWidth(font, "Threshold"), 20.0);
}

TEST(CFontManager, BrokenFilesAreToldAndTheOthersServe)
{
    const Tests::CTemporaryFolder folder;
    std::filesystem::copy(GetOwnFolder() + "/DejaVuSans.ttf", folder.GetPath("DejaVuSans.ttf"));
    folder.Write("DejaVuSans-Bold.ttf", "this is no font");
    folder.Write("DejaVuSans-Oblique.ttf", folder.Read("DejaVuSans.ttf").substr(0, 5000));
    CFontManager manager(folder.GetPath("."));
    EXPECT_NE(manager.GetProblem().find("DejaVuSans-Bold.ttf"), std::string::npos);
    EXPECT_NE(manager.GetProblem().find("DejaVuSans-BoldOblique.ttf"), std::string::npos);
    CFontDescription bold = Describe(16);
    bold.weight = CFontDescription::boldWeight;
    EXPECT_GT(GetWidth(manager.GetFont(bold), "Threshold"), 50.0);
}

TEST(CFontManager, LoadedFileIsKnownUnderItsFamilysName)
{
    const char* path = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
    CFontManager manager(GetOwnFolder());
    EXPECT_TRUE(manager.LoadFont(path));
    CFontDescription mono = Describe(16);
    mono.face = "DejaVu Sans Mono";
    EXPECT_DOUBLE_EQ(GetWidth(manager.GetFont(mono), "iiii"), GetWidth(manager.GetFont(mono), "WWWW"));
}

TEST(CFontManager, WhatIsNoFontIsNotLoaded)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("text.ttf", "this is no font");
    folder.Write("empty.ttf", "");
    EXPECT_FALSE(GetFonts().LoadFont(folder.GetPath("text.ttf").c_str()));
    EXPECT_FALSE(GetFonts().LoadFont(folder.GetPath("empty.ttf").c_str()));
    EXPECT_FALSE(GetFonts().LoadFont(folder.GetPath("missing.ttf").c_str()));
    EXPECT_FALSE(GetFonts().LoadFont(folder.GetPath(".").c_str()));
    EXPECT_FALSE(GetFonts().LoadFont("/dev/zero"));
}

/// Damage anywhere in a font that a skin brings: it is refused or drawn with, but drawing goes on.
TEST(CFontManager, DamagedFontsDoNotStopTheDrawing)
{
    const Tests::CTemporaryFolder folder;
    const Tests::CTemporaryFolder source;
    std::filesystem::copy(GetOwnFolder() + "/DejaVuSans.ttf", source.GetPath("good.ttf"));
    const std::string good = source.Read("good.ttf");
    std::uint32_t random = 7;
    for (int i = 0; i < 20; ++i)
    {
        std::string bad = good;
        for (int k = 0; k < 2000; ++k)
        {
            random = random * 1664525U + 1013904223U;
            bad[random % bad.size()] = static_cast<char>(random >> 24U);
        }
        folder.Write("DejaVuSans.ttf", bad);
        CFontManager manager(folder.GetPath("."));
        Tests::CCanvas canvas(200, 40);
        canvas->SetFont(manager.GetFont(Describe(20)));
        canvas->DrawText("Damaged gauge 0123", {2, 2});
        canvas->SetFillColor({1, 2, 3});
        canvas->FillRect({0, 0, 1, 1});
        ASSERT_EQ(canvas.At(0, 0), 0xff010203U);
    }
}

TEST(CFontManager, FontsOfTheProcessAreLeftAlone)
{
    FcConfig* current = FcConfigGetCurrent();
    const FcFontSet* before = FcConfigGetFonts(current, FcSetApplication);
    const int count = before == nullptr ? 0 : before->nfont;
    CFontManager manager(GetOwnFolder());
    manager.LoadFont((GetOwnFolder() + "/DejaVuSans.ttf").c_str());
    EXPECT_GT(GetWidth(manager.GetFont(Describe(16)), "Threshold"), 50.0);
    EXPECT_EQ(FcConfigGetCurrent(), current);
    const FcFontSet* after = FcConfigGetFonts(current, FcSetApplication);
    EXPECT_EQ(after == nullptr ? 0 : after->nfont, count);
}

TEST(CFont, GivesNoLayoutForWhatIsNotDrawn)
{
    const CSharedFont font = GetFonts().GetFont(Describe(16));
    EXPECT_EQ(font->LayOut(nullptr, {}), nullptr);
    EXPECT_EQ(font->LayOut("", {}), nullptr);
    EXPECT_EQ(font->LayOut("caf\xe9", {}), nullptr);
    EXPECT_EQ(font->LayOut("\xed\xa0\x80", {}), nullptr);
}

TEST(CFont, LayoutsAreKeptUntilManyOthersCame)
{
    const CSharedFont font = GetFonts().GetFont(Describe(17));
    const auto first = font->LayOut("-12.5 dB", {});
    EXPECT_EQ(font->LayOut("-12.5 dB", {}), first);
    EXPECT_NE(font->LayOut("-12.5 dB", {CTextFormat::multiline, 20}), first);
    for (int i = 0; i < 1000; ++i)
    {
        font->LayOut(std::to_string(i).c_str(), {});
    }
    EXPECT_NE(font->LayOut("-12.5 dB", {}), first);
}

TEST(CFont, LongTextsAreCutBetweenCharacters)
{
    const CSharedFont font = GetFonts().GetFont(Describe(10));
    const std::string kept(CLimits::maxTextBytes - 1, 'i');
    // The two bytes of the last character would not both fit.
    EXPECT_DOUBLE_EQ(GetWidth(font, (kept + "\xc3\xa9" + std::string(1000000, 'i')).c_str()),
                     GetWidth(font, kept.c_str()));
}

TEST(CFont, HostileTextsTakeBoundedTime)
{
    const CSharedFont font = GetFonts().GetFont(Describe(10));
    const auto repeat = [](const std::string& unit)
    {
        std::string text;
        while (text.size() < (std::size_t{1} << 20U))
        {
            text += unit;
        }
        return text;
    };
    for (const char* unit : {"a", "\n", " ", "\xcc\x81", "\xd9\x85", "\xe2\x80\xab(", "\xf0\x9f\x98\x80",
                             "\xe6\xbc\xa2", "a\xcc\x88\xcc\xa3", "\x01", "\xe2\x80\xa8"})
    {
        const std::string text = repeat(unit);
        for (const std::uint32_t flags :
             {0U, +CTextFormat::multiline, CTextFormat::multiline | CTextFormat::ellipsis,
              +CTextFormat::ellipsis})
        {
            const auto start = std::chrono::steady_clock::now();
            Tests::CCanvas canvas(100, 40);
            canvas->SetFont(font);
            canvas->DrawTextInRect(text.c_str(), {0, 0, 100, 40}, {flags | CTextFormat::wordBreak, {}, {}});
            const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
            // Many times what it takes, for slow machines and sanitizers.
            EXPECT_LT(took.count(), 5.0) << unit << flags;
        }
    }
}
