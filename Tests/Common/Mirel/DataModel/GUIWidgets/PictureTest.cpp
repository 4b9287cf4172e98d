#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "CurveRig.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUIXCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CGUIYCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesViewer.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/Graphics/CColorDrawer.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Support/DataFolder.h"

#include <cairo.h>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Graphics::CColor;
using Graphics::CRect;
using Tests::CFunctionOf;

namespace
{

constexpr CColor ground = {16, 20, 26};
constexpr CColor field = {9, 12, 16};
constexpr CColor major = {44, 54, 64};
constexpr CColor minor = {24, 30, 37};
constexpr CColor axisColor = {84, 100, 116};
constexpr CColor green = {90, 220, 120};
constexpr CColor amber = {240, 180, 60};
constexpr CColor textColor = {150, 164, 178};

DataModel::Objects::CParamInfo Axis(float min, float max, const char* unit, const char* format)
{
    return {2,  min,  max, 0.0F,
            "", unit, "",  new DataModel::Objects::CParamValueToText(format, false, "{value}")};
}

/// A graph with its grid and rulers, as a skin would place them.
class CPanel : public GUI::CLightWidget
{
public:
    CPanel(const DataModel::Objects::CParamInfo& x, const DataModel::Objects::CParamInfo& y,
           const Math::IFunction& function, const Graphics::CSharedFont& font)
        : curve(DataModel::Objects::CCurveInfo(x, y, "", "")),
          grid(curve, this),
          graph(curve, this),
          xRuler(curve, this),
          yRuler(curve, this)
    {
        curve.SetValue(function);
        grid.GetGridGraphics().SetPen({major, 0});
        grid.GetGridGraphics().SetSubdivisionPen({minor, 0});
        grid.GetGridGraphics().SetOriginPen({axisColor, 0});
        graph.GetCurveGraphics().SetColor(green);
        for (CGUIRuler* ruler : {static_cast<CGUIRuler*>(&xRuler), static_cast<CGUIRuler*>(&yRuler)})
        {
            ruler->GetRulerGraphics().SetFont(font);
            ruler->GetRulerGraphics().SetColor(textColor);
        }
        xRuler.GetRulerGraphics().SetVAlign(Graphics::ETextVAlign::Top);
        yRuler.GetRulerGraphics().SetHAlign(Graphics::ETextHAlign::Right);
    }

    void Place(CRect area)
    {
        constexpr int left = 44;
        constexpr int below = 20;
        constexpr int margin = 14;
        Move(area.GetOrigin());
        const Core::CSize inner = {area.width - left - margin, area.height - below - margin};
        grid.Move({left, margin});
        grid.SetSize(inner);
        graph.Move({left, margin});
        graph.SetSize(inner);
        xRuler.Move({left - margin, margin + inner.height + 3});
        xRuler.SetSize({inner.width + 2 * margin, below - 3});
        xRuler.GetRulerGraphics().SetHMargin(margin);
        yRuler.Move({0, 0});
        yRuler.SetSize({left - 6, inner.height + 2 * margin});
        yRuler.GetRulerGraphics().SetVMargin(margin);
    }

    void SetStops(int x, int y, int subdivisions)
    {
        for (auto* viewer : {&grid.GetXViewer(), &xRuler.GetViewer()})
        {
            viewer->SetPositionsCount(x);
        }
        for (auto* viewer : {&grid.GetYViewer(), &yRuler.GetViewer()})
        {
            viewer->SetPositionsCount(y);
        }
        grid.GetGridGraphics().SetXSubdivisionsCount(subdivisions);
        grid.GetGridGraphics().SetYSubdivisionsCount(subdivisions);
    }

    void Paint(Graphics::CDrawSurface& surface)
    {
        surface.SetFillColor(field);
        surface.FillRect({GetPosition().x + grid.GetPosition().x, GetPosition().y + grid.GetPosition().y,
                          grid.GetSize().width, grid.GetSize().height});
        surface.SaveState();
        surface.Translate(GetPosition());
        for (GUI::CLightWidget* child :
             std::initializer_list<GUI::CLightWidget*>{&grid, &graph, &xRuler, &yRuler})
        {
            surface.SaveState();
            surface.Translate(child->GetPosition());
            surface.ClipToRect({Core::CPoint(), child->GetSize()});
            child->GetGraphics()->Draw(surface, nullptr);
            surface.RestoreState();
        }
        surface.RestoreState();
    }

    DataModel::Objects::CCaptureCurve curve;
    CGUICurveGridViewer grid;
    CGUICurveViewer graph;
    CGUIXCurveRuler xRuler;
    CGUIYCurveRuler yRuler;
};

std::vector<float> Noise(int count)
{
    std::minstd_rand engine(7);
    std::normal_distribution<float> normal(0.0F, 0.3F);
    std::vector<float> values(static_cast<std::size_t>(count));
    for (float& value : values)
    {
        value = std::clamp(normal(engine), -1.0F, 1.0F);
    }
    return values;
}

void Write(Tests::CCanvas& canvas, const std::string& name)
{
    cairo_surface_t* target = cairo_get_target(canvas->GetNativeContext());
    cairo_surface_flush(target);
    const std::string path = std::string(PICTURES) + "/" + name + ".png";
    ASSERT_EQ(cairo_surface_write_to_png(target, path.c_str()), CAIRO_STATUS_SUCCESS);
}

/// Pixels of the rectangle in which the given channel stands out of the ground.
int CountBright(const Tests::CCanvas& canvas, const CRect& rect)
{
    int count = 0;
    for (int y = rect.y; y < rect.y + rect.height; ++y)
    {
        for (int x = rect.x; x < rect.x + rect.width; ++x)
        {
            count += ((canvas.At(x, y) >> 8U) & 0xffU) > 120U ? 1 : 0;
        }
    }
    return count;
}

} // namespace

/// Pictures for the eye, left in the build folder; what can be told in numbers, other tests tell.
TEST(Pictures, OfTracesWithGridAndRulers)
{
    Graphics::CFontManager fonts(Graphics::GetFontsFolder(Tests::GetDataFolder()));
    const auto font = fonts.GetFont({.face = "", .height = 14});
    const std::vector<float> noise = Noise(48000);
    const auto at = [&](float x)
    { return noise[static_cast<std::size_t>(std::clamp(x, 0.0F, 1.0F) * 47999.0F)]; };
    const CFunctionOf sine([](float x) { return 0.8F * std::sin(x * 31.416F); });
    const CFunctionOf clipped([](float x) { return std::clamp(1.6F * std::sin(x * 25.1F), -1.0F, 1.0F); });
    const CFunctionOf whiteNoise(at);
    const CFunctionOf silence([](float) { return 0.0F; });
    const CFunctionOf decay([](float x) { return std::exp(-4.0F * x) * std::sin(x * 188.5F); });
    const auto time = Axis(0.0F, 1.0F, "s", "%.2f");
    const auto level = Axis(-1.0F, 1.0F, "", "%.1f");

    Tests::CCanvas canvas(1000, 1150);
    canvas->SetFillColor(ground);
    canvas->FillRect({0, 0, 1000, 1150});
    int row = 0;
    for (const CFunctionOf* function : {&sine, &whiteNoise, &clipped, &silence, &decay})
    {
        CPanel panel(time, level, *function, font);
        panel.SetStops(11, 5, row % 2 == 0 ? 4 : 1);
        panel.Place({0, row * 230, 1000, 230});
        panel.graph.GetCurveGraphics().SetAntiAlias(row != 4);
        panel.Paint(*canvas);
        EXPECT_GT(CountBright(canvas, {50, row * 230 + 14, 900, 190}), 600) << row;
        ++row;
    }
    Write(canvas, "traces");
}

TEST(Pictures, OfBarsFiguresAndSizes)
{
    Graphics::CFontManager fonts(Graphics::GetFontsFolder(Tests::GetDataFolder()));
    const auto font = fonts.GetFont({.face = "", .height = 13});
    const CFunctionOf bell([](float x)
                           { return std::exp(-12.0F * x * x) * (0.9F + 0.1F * std::sin(90.0F * x)); });
    const auto amplitude = Axis(-1.0F, 1.0F, "", "%.1f");
    const auto share = Axis(0.0F, 1.0F, "", "%.1f");
    Tests::CCanvas canvas(1000, 900);
    canvas->SetFillColor(ground);
    canvas->FillRect({0, 0, 1000, 900});

    CPanel bars(amplitude, share, bell, font);
    bars.graph.GetCurveGraphics().SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    bars.graph.GetCurveGraphics().SetColor(amber);
    bars.SetStops(9, 6, 0);
    bars.Place({0, 0, 480, 280});
    bars.Paint(*canvas);

    CPanel sparse(amplitude, share, bell, font);
    sparse.graph.GetCurveGraphics().SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    sparse.graph.GetViewer().GetXViewer().SetPositionsCount(41);
    sparse.graph.GetCurveGraphics().SetAntiAlias(false);
    sparse.Place({500, 0, 300, 280});
    sparse.SetStops(5, 3, 1);
    sparse.Paint(*canvas);

    DataModel::Objects::CCaptureCurve curve(DataModel::Objects::CCurveInfo(amplitude, share, "", ""));
    curve.SetValue(bell);
    CGUICurveViewer upright(curve);
    upright.GetViewer().SetVertical(true);
    upright.GetViewer().GetXViewer().SetReverse(true);
    upright.GetCurveGraphics().SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    upright.GetCurveGraphics().SetColor(amber);
    upright.SetSize({140, 240});
    canvas->SetFillColor(field);
    canvas->FillRect({830, 14, 140, 240});
    canvas->SaveState();
    canvas->Translate({830, 14});
    upright.GetGraphics()->Draw(*canvas, nullptr);
    canvas->RestoreState();

    const CFunctionOf xs([](float t) { return std::sin(t * 6.2832F * 3.0F); });
    const CFunctionOf ys([](float t) { return std::sin(t * 6.2832F * 2.0F + 0.4F); });
    DataModel::Objects::CCaptureCurve x(DataModel::Objects::CCurveInfo(share, amplitude, "", ""));
    DataModel::Objects::CCaptureCurve y(DataModel::Objects::CCurveInfo(share, amplitude, "", ""));
    x.SetValue(xs);
    y.SetValue(ys);
    for (int i = 0; i < 3; ++i)
    {
        CXYCurvesViewer figure(x, y);
        figure.SetSize({260, 260});
        figure.GetCurvesGraphics().SetColor(green);
        figure.GetCurvesGraphics().SetGraphStyle(i == 1 ? CXYCurvesGraphics::GraphStyleDots
                                                        : CXYCurvesGraphics::GraphStyleCurve);
        figure.GetCurvesGraphics().SetAntiAlias(i != 2);
        figure.GetCurvesGraphics().SetPositionsCount(i == 1 ? 300.0F : 1024.0F);
        canvas->SetFillColor(field);
        canvas->FillRect({20 + i * 280, 300, 260, 260});
        canvas->SaveState();
        canvas->Translate({20 + i * 280, 300});
        figure.GetGraphics()->Draw(*canvas, nullptr);
        canvas->RestoreState();
    }

    const CFunctionOf decay([](float t) { return std::exp(-3.0F * t) * std::sin(t * 100.0F); });
    int left = 0;
    for (const int width : {90, 150, 280, 480})
    {
        CPanel panel(Axis(0.0F, 1.0F, "s", "%.2f"), amplitude, decay, font);
        panel.Place({left, 580, width, 80 + width / 3});
        panel.SetStops(width < 280 ? 11 : -1, width < 280 ? 9 : -1, 0);
        panel.grid.GetXViewer().SetPositionsCount(11);
        panel.grid.GetYViewer().SetPositionsCount(5);
        panel.Paint(*canvas);
        left += width;
    }

    const CFunctionOf response([](float f)
                               { return -10.0F * std::log10(1.0F + (f / 1000.0F) * (f / 1000.0F)); });
    CPanel spectrum(Axis(20.0F, 20000.0F, "Hz", "%.0f"), Axis(-60.0F, 6.0F, "dB", "%.0f"), response, font);
    for (auto* viewer : {&spectrum.grid.GetXViewer(), &spectrum.graph.GetViewer().GetXViewer(),
                         &spectrum.xRuler.GetViewer()})
    {
        viewer->SetLogScale(true);
    }
    spectrum.Place({300, 760, 700, 140});
    spectrum.grid.GetXViewer().SetPositionsCount(13);
    spectrum.grid.GetYViewer().SetPositionsCount(12);
    spectrum.Paint(*canvas);
    EXPECT_GT(CountBright(canvas, {0, 0, 1000, 900}), 10000);
    Write(canvas, "figures");
}
