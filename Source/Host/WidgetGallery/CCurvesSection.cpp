#include "Host/WidgetGallery/CCurvesSection.h"

#include "Host/WidgetGallery/CDemoFunction.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUIXCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CGUIYCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesViewer.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/Graphics/CColorDrawer.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace WidgetGallery
{

namespace
{

using namespace DataModel::GUIWidgets;
using DataModel::Objects::CParamInfo;

constexpr Core::CSize graphSize = {180, 90};
constexpr Graphics::CColor ground = {0x0B, 0x0E, 0x11};
constexpr Graphics::CColor green = {0x5A, 0xDC, 0x78};
constexpr Graphics::CColor major = {0x38, 0x42, 0x4C};
constexpr Graphics::CColor minor = {0x1E, 0x25, 0x2B};
constexpr Graphics::CColor axisColor = {0x6A, 0x78, 0x86};
constexpr float turn = 2.0F * std::numbers::pi_v<float>;

CParamInfo Axis(float min, float max, const char* unit, const char* format)
{
    return {2,  min,  max, 0.0F,
            "", unit, "",  new DataModel::Objects::CParamValueToText(format, false, "{value}")};
}

float Wave(float x)
{
    return 0.6F * std::sin(turn * 2.0F * x) + 0.3F * std::sin(turn * 7.0F * x);
}

/// A wave whose peaks are narrower than a pixel.
float Dense(float x)
{
    return std::sin(turn * 3.0F * x) * 0.5F * (1.0F + std::sin(turn * 331.0F * x));
}

/// The dark ground of a graph, with the widgets on it.
class CGround : public GUI::CLightWidget
{
public:
    CGround() { SetGraphics(new Graphics::CColorDrawer(ground), true); }

    template <class Widget>
    Widget& Put(std::unique_ptr<Widget> widget, Core::CPoint place, Core::CSize size)
    {
        Widget& added = *widget;
        added.SetSize(size);
        added.Move(place);
        AddChild(&added);
        widgets.push_back(std::move(widget));
        return added;
    }

private:
    std::vector<std::unique_ptr<GUI::CLightWidget>> widgets;
};

void SetPens(CGridGraphics& grid)
{
    grid.SetPen({major, 0});
    grid.SetSubdivisionPen({minor, 0});
    grid.SetOriginPen({axisColor, 0});
}

void SetRuler(CGUIRulerGraphics& ruler, const GUI::CPopupLook& look)
{
    ruler.SetFont(look.font);
    ruler.SetColor(look.text);
}

} // namespace

CCurvesSection::CCurvesSection() = default;

CCurvesSection::CCurve& CCurvesSection::MakeCurve(std::function<float(float)> code)
{
    const DataModel::Objects::CCurveInfo info(Axis(0.0F, 1.0F, "s", "%.1f"), Axis(-1.0F, 1.0F, "", "%.1f"),
                                              "", "");
    curves.push_back(std::make_unique<CCurve>(info));
    curves.back()->SetValue(CDemoFunction(std::move(code)));
    return *curves.back();
}

void CCurvesSection::Fill(CGalleryPage& page)
{
    page.BeginSection("Curve graphs");
    const CCurve& wave = MakeCurve(Wave);
    const CCurve& dense = MakeCurve(Dense);
    AddGraph(page, "Curve, between pixels", wave, false, true);
    AddGraph(page, "Curve, whole pixels", wave, false, false);
    AddGraph(page, "Bar graph, between pixels", wave, true, true, 0.25F);
    AddGraph(page, "Bar graph, whole pixels", wave, true, false, 0.25F);
    AddGraph(page, "Four samples a pixel", dense, false, true, 4.0F);
    AddGraph(page, "The same as min and max", dense, false, true, 4.0F, true);
    AddGraph(page, "Gap where it is no number",
             MakeCurve([](float x) { return x > 0.4F && x < 0.6F ? NAN : Wave(x); }), false, true);
    AddStops(page);
    AddVertical(page);
    AddXY(page, true);
    AddXY(page, false);
    page.BeginSection("Grids and rulers");
    AddScope(page);
    AddGrids(page);
    AddRulers(page);
}

void CCurvesSection::AddGraph(CGalleryPage& page, const std::string& caption, const CCurve& curve,
                              bool isBargraph, bool antiAlias, float sampleRate, bool isMinMax)
{
    auto box = std::make_unique<CGround>();
    CCurveGraphics& graphics =
        box->Put(std::make_unique<CGUICurveViewer>(curve), {}, graphSize).GetCurveGraphics();
    graphics.SetColor(green);
    graphics.SetGraphStyle(isBargraph ? CCurveGraphics::GraphStyleBargraph : CCurveGraphics::GraphStyleCurve);
    graphics.SetAntiAlias(antiAlias);
    graphics.SetSampleRate(sampleRate);
    graphics.SetMinMaxMode(isMinMax);
    page.Add(std::move(box), graphSize, caption);
}

void CCurvesSection::AddStops(CGalleryPage& page)
{
    auto box = std::make_unique<CGround>();
    auto& viewer = box->Put(std::make_unique<CGUICurveViewer>(MakeCurve(Wave)), {}, graphSize);
    viewer.GetCurveGraphics().SetColor(green);
    viewer.GetCurveGraphics().SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    viewer.GetViewer().GetXViewer().SetPositionsCount(24);
    page.Add(std::move(box), graphSize, "Bars at 24 stops");
}

void CCurvesSection::AddVertical(CGalleryPage& page)
{
    auto box = std::make_unique<CGround>();
    auto& viewer = box->Put(std::make_unique<CGUICurveViewer>(MakeCurve(Wave)), {}, graphSize);
    viewer.GetCurveGraphics().SetColor(green);
    viewer.GetViewer().SetVertical(true);
    page.Add(std::move(box), graphSize, "Vertical");
}

void CCurvesSection::AddXY(CGalleryPage& page, bool isCurve)
{
    auto box = std::make_unique<CGround>();
    const CCurve& across = MakeCurve([](float t) { return 0.9F * std::sin(turn * 3.0F * t); });
    const CCurve& up = MakeCurve([](float t) { return 0.9F * std::cos(turn * 2.0F * t + 0.4F); });
    CXYCurvesGraphics& graphics =
        box->Put(std::make_unique<CXYCurvesViewer>(across, up), {}, graphSize).GetCurvesGraphics();
    graphics.SetColor({0xFF, 0xB0, 0x3A});
    graphics.SetGraphStyle(isCurve ? CXYCurvesGraphics::GraphStyleCurve : CXYCurvesGraphics::GraphStyleDots);
    graphics.SetPositionsCount(isCurve ? 1024.0F : 160.0F);
    page.Add(std::move(box), graphSize, isCurve ? "XY curve" : "XY dots");
}

void CCurvesSection::AddScope(CGalleryPage& page)
{
    constexpr Core::CSize inner = {380, 160};
    constexpr int left = 44;
    constexpr int below = 20;
    constexpr int margin = 14;
    constexpr Core::CSize whole = {inner.width + left + margin, inner.height + below + margin};
    auto box = std::make_unique<CGround>();
    const CCurve& curve = MakeCurve(Wave);
    auto& grid = box->Put(std::make_unique<CGUICurveGridViewer>(curve), {left, margin}, inner);
    SetPens(grid.GetGridGraphics());
    grid.GetGridGraphics().SetXSubdivisionsCount(4);
    grid.GetGridGraphics().SetYSubdivisionsCount(4);
    grid.GetXViewer().SetPositionsCount(11);
    grid.GetYViewer().SetPositionsCount(5);
    box->Put(std::make_unique<CGUICurveViewer>(curve), {left, margin}, inner)
        .GetCurveGraphics()
        .SetColor(green);
    auto& xRuler =
        box->Put(std::make_unique<CGUIXCurveRuler>(curve), {left - margin, margin + inner.height + 3},
                 {inner.width + 2 * margin, below - 3});
    SetRuler(xRuler.GetRulerGraphics(), page.GetLook());
    xRuler.GetRulerGraphics().SetVAlign(Graphics::ETextVAlign::Top);
    xRuler.GetRulerGraphics().SetHMargin(margin);
    xRuler.GetViewer().SetPositionsCount(11);
    auto& yRuler =
        box->Put(std::make_unique<CGUIYCurveRuler>(curve), {0, 0}, {left - 6, inner.height + 2 * margin});
    SetRuler(yRuler.GetRulerGraphics(), page.GetLook());
    yRuler.GetRulerGraphics().SetHAlign(Graphics::ETextHAlign::Right);
    yRuler.GetRulerGraphics().SetVMargin(margin);
    yRuler.GetViewer().SetPositionsCount(5);
    page.Add(std::move(box), whole, "Graph with grid and rulers");
}

void CCurvesSection::AddGrids(CGalleryPage& page)
{
    constexpr Core::CSize size = {160, 120};
    for (const bool isDivided : {false, true})
    {
        auto box = std::make_unique<CGround>();
        auto& grid = box->Put(std::make_unique<CGUICurveGridViewer>(MakeCurve(Wave)), {}, size);
        SetPens(grid.GetGridGraphics());
        grid.GetXViewer().SetPositionsCount(5);
        grid.GetYViewer().SetPositionsCount(5);
        grid.GetGridGraphics().SetXSubdivisionsCount(isDivided ? 3 : 0);
        grid.GetGridGraphics().SetYLines(isDivided);
        page.Add(std::move(box), size, isDivided ? "Grid, subdivided across" : "Grid of one axis");
    }
}

void CCurvesSection::AddRulers(CGalleryPage& page)
{
    const CCurve& curve = MakeCurve(Wave);
    auto across = std::make_unique<CGUIXCurveRuler>(curve);
    SetRuler(across->GetRulerGraphics(), page.GetLook());
    across->GetRulerGraphics().SetHMargin(14);
    across->GetViewer().SetPositionsCount(6);
    page.Add(std::move(across), {200, 24}, "Ruler");
    auto up = std::make_unique<CGUIYCurveRuler>(curve);
    SetRuler(up->GetRulerGraphics(), page.GetLook());
    up->GetRulerGraphics().SetVMargin(10);
    up->GetViewer().SetPositionsCount(5);
    page.Add(std::move(up), {50, 120}, "Vertical ruler");
}

} // namespace WidgetGallery
