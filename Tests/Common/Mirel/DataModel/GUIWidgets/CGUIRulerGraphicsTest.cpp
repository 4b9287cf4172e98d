#include "Mirel/DataModel/GUIWidgets/CGUIRulerGraphics.h"

#include "CRecordingSurface.h"
#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "Common/Mirel/Graphics/Changes.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/CTextLayout.h"
#include "Support/AllocationCounter.h"
#include "Support/DataFolder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using DataModel::Controls::CParamViewerConfig;
using Graphics::CRect;
using Graphics::ETextHAlign;
using Graphics::ETextVAlign;
using Tests::CRecordingSurface;

namespace
{

DataModel::Objects::CParamInfo Axis(float min, float max, const char* format)
{
    return {2,  min, max, 0.0F,
            "", "",  "",  new DataModel::Objects::CParamValueToText(format, false, "{value}")};
}

/// A ruler with five stops from -1 to 1, in the product's own font.
struct CRuler
{
    explicit CRuler(Core::CSize size, bool vertical = false)
        : fonts(Graphics::GetFontsFolder(Tests::GetDataFolder())),
          font(fonts.GetFont({.face = "", .height = 12})),
          info(Axis(-1.0F, 1.0F, "%.1f")),
          axis(info),
          graphics(axis)
    {
        axis.SetPositionsCount(5);
        graphics.SetVertical(vertical);
        graphics.SetFont(font);
        graphics.SetColor({1, 2, 3});
        graphics.SetSize(size);
    }

    std::vector<CRecordingSurface::COperation> Record()
    {
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        return surface.operations;
    }

    std::vector<std::string> Texts()
    {
        std::vector<std::string> texts;
        for (const auto& operation : Record())
        {
            texts.push_back(operation.text);
        }
        return texts;
    }

    Core::CSize ExtentOf(const char* text) const
    {
        return font->LayOut(text, Graphics::CTextLayoutRequest())->GetExtent();
    }

    Graphics::CFontManager fonts;
    Graphics::CSharedFont font;
    DataModel::Objects::CParamInfo info;
    CParamViewerConfig axis;
    CGUIRulerGraphics graphics;
};

using Texts = std::vector<std::string>;

/// A place in whole pixels, as surfaces are given it.
float Pixel(int place)
{
    return static_cast<float>(place);
}

} // namespace

TEST(CGUIRulerGraphics, PrintsTheValuesOfTheStopsWithTheirMiddleAtTheirPlaces)
{
    CRuler ruler({401, 20});
    const auto operations = ruler.Record();
    ASSERT_EQ(operations.size(), 5U);
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "-0.5", "0.0", "0.5", "1.0"}));
    for (const int i : {1, 2, 3})
    {
        const auto& label = operations[static_cast<std::size_t>(i)];
        const Core::CSize extent = ruler.ExtentOf(label.text.c_str());
        EXPECT_EQ(label.points[0].x, Pixel(100 * i - extent.width / 2));
        EXPECT_EQ(label.points[0].y, Pixel((20 - extent.height) / 2));
        EXPECT_EQ(label.color, (Graphics::CColor{1, 2, 3}));
    }
}

TEST(CGUIRulerGraphics, LabelsAtTheEndsStayWithinTheArea)
{
    CRuler ruler({401, 20});
    const auto operations = ruler.Record();
    EXPECT_EQ(operations.front().points[0].x, 0.0F);
    EXPECT_EQ(operations.back().points[0].x, static_cast<float>(401 - ruler.ExtentOf("1.0").width));
}

TEST(CGUIRulerGraphics, MarginLeavesRoomForThem)
{
    CRuler ruler({441, 20});
    ruler.graphics.SetHMargin(20);
    const auto operations = ruler.Record();
    EXPECT_EQ(operations.front().points[0].x, Pixel(20 - ruler.ExtentOf("-1.0").width / 2));
    EXPECT_EQ(operations[2].points[0].x, Pixel(220 - ruler.ExtentOf("0.0").width / 2));
    EXPECT_EQ(operations.back().points[0].x, Pixel(420 - ruler.ExtentOf("1.0").width / 2));
}

TEST(CGUIRulerGraphics, AlignmentAlongTheRulerIsThatOfTheLabelAtItsPlace)
{
    CRuler ruler({401, 20});
    ruler.graphics.SetHAlign(ETextHAlign::Left);
    EXPECT_EQ(ruler.Record()[1].points[0].x, 100.0F);
    ruler.graphics.SetHAlign(ETextHAlign::Right);
    EXPECT_EQ(ruler.Record()[1].points[0].x, static_cast<float>(101 - ruler.ExtentOf("-0.5").width));
}

TEST(CGUIRulerGraphics, AlignmentAcrossKeepsTheMargin)
{
    CRuler ruler({401, 40});
    ruler.graphics.SetVMargin(5);
    ruler.graphics.SetVAlign(ETextVAlign::Top);
    EXPECT_EQ(ruler.Record()[1].points[0].y, 5.0F);
    ruler.graphics.SetVAlign(ETextVAlign::Bottom);
    EXPECT_EQ(ruler.Record()[1].points[0].y, static_cast<float>(35 - ruler.ExtentOf("0.5").height));
}

TEST(CGUIRulerGraphics, VerticalRulerRunsUpward)
{
    CRuler ruler({60, 221}, true);
    ruler.graphics.SetVMargin(10);
    ruler.graphics.SetHMargin(3);
    ruler.graphics.SetHAlign(ETextHAlign::Right);
    const auto operations = ruler.Record();
    ASSERT_EQ(operations.size(), 5U);
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "-0.5", "0.0", "0.5", "1.0"}));
    for (int i = 0; i < 5; ++i)
    {
        const auto& label = operations[static_cast<std::size_t>(i)];
        const Core::CSize extent = ruler.ExtentOf(label.text.c_str());
        EXPECT_EQ(label.points[0].x, static_cast<float>(60 - 3 - extent.width));
        EXPECT_EQ(label.points[0].y, Pixel(210 - 50 * i - extent.height / 2));
    }
}

TEST(CGUIRulerGraphics, LabelsThatComeTooCloseAreLeftOut)
{
    CRuler ruler({100, 20});
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "0.0", "1.0"}));
    const int width = ruler.ExtentOf("-1.0").width + ruler.ExtentOf("1.0").width;
    ruler.graphics.SetSize({width + 4, 20});
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "1.0"}));
    ruler.graphics.SetSize({width + 3, 20});
    EXPECT_EQ(ruler.Texts(), Texts{"-1.0"});
    ruler.graphics.SetSize({1, 20});
    EXPECT_EQ(ruler.Texts(), Texts{"-1.0"});
}

TEST(CGUIRulerGraphics, ZeroIsPrintedAsZero)
{
    // The arithmetic of these stops does not meet zero exactly.
    CRuler ruler({801, 20});
    const auto info = Axis(-0.3F, 0.6F, "%.2f");
    CParamViewerConfig axis(info);
    axis.SetPositionsCount(10);
    CGUIRulerGraphics graphics(axis);
    graphics.SetFont(ruler.font);
    graphics.SetSize({801, 20});
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    ASSERT_EQ(surface.operations.size(), 10U);
    EXPECT_EQ(surface.operations[3].text, "0.00");
}

TEST(CGUIRulerGraphics, FollowsItsAxisAndItsDescription)
{
    CRuler ruler({401, 20});
    ruler.Record();
    ruler.axis.SetZoom(2.0F);
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "-0.5", "0.0"}));
    ruler.info.SetMax(3.0F);
    EXPECT_EQ(ruler.Texts(), (Texts{"-1.0", "0.0", "1.0"}));
    ruler.info.SetValueToText(new DataModel::Objects::CParamValueToText("%.0f", false, "{value} V"), true);
    EXPECT_EQ(ruler.Texts(), (Texts{"-1 V", "0 V", "1 V"}));
}

TEST(CGUIRulerGraphics, NothingWithoutAFontOrAnArea)
{
    CRuler ruler({401, 20});
    ruler.graphics.SetFont(nullptr);
    EXPECT_TRUE(ruler.Record().empty());
    ruler.graphics.SetFont(ruler.font);
    for (const Core::CSize size : {Core::CSize{0, 20}, Core::CSize{401, 0}, Core::CSize{-1, -1}})
    {
        ruler.graphics.SetSize(size);
        EXPECT_TRUE(ruler.Record().empty());
    }
}

TEST(CGUIRulerGraphics, MarginsBeyondTheAreaDoNoHarm)
{
    CRuler ruler({100, 20});
    ruler.graphics.SetHMargin(1000000);
    ruler.graphics.SetVMargin(2147483647);
    EXPECT_LE(ruler.Record().size(), 5U);
    ruler.graphics.SetHMargin(-2147483647);
    ruler.graphics.SetVMargin(-2147483647);
    EXPECT_LE(ruler.Record().size(), 5U);
}

TEST(CGUIRulerGraphics, LabelsAreSetOnceAndThenOnlyDrawn)
{
    CRuler ruler({401, 20});
    Graphics::CDrawSurface surface(nullptr);
    ruler.graphics.Draw(surface, nullptr);
    const Tests::CAllocationCounter allocations;
    ruler.graphics.Draw(surface, nullptr);
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(CGUIRulerGraphics, EveryChangeIsToldWithTheWholeArea)
{
    CRuler ruler({401, 20});
    const Tests::CChanges changes(ruler.graphics);
    std::size_t told = 0;
    const auto expectOne = [&](auto set)
    {
        set();
        ASSERT_EQ(changes.areas.size(), ++told);
        EXPECT_EQ(changes.areas.back(), CRect(0, 0, 401, 20));
        set();
        EXPECT_EQ(changes.areas.size(), told);
    };
    expectOne([&] { ruler.graphics.SetColor({7, 7, 7}); });
    expectOne([&] { ruler.graphics.SetVertical(true); });
    expectOne([&] { ruler.graphics.SetHAlign(ETextHAlign::Left); });
    expectOne([&] { ruler.graphics.SetVAlign(ETextVAlign::Top); });
    expectOne([&] { ruler.graphics.SetHMargin(3); });
    expectOne([&] { ruler.graphics.SetVMargin(3); });
    expectOne([&] { ruler.graphics.SetFont(nullptr); });
    expectOne([&] { ruler.axis.SetOffset(0.5F); });
    ruler.info.SetUnit("V");
    EXPECT_EQ(changes.areas.size(), ++told);
}

TEST(CGUIRulerGraphics, LabelsAreSeen)
{
    CRuler ruler({401, 20});
    Tests::CCanvas canvas(401, 20);
    ruler.graphics.Draw(*canvas, nullptr);
    EXPECT_GT(canvas.CountPainted(), 100);
}
