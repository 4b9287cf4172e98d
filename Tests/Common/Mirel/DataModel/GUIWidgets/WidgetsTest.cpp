#include "CurveRig.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUIXCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CGUIYCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesViewer.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/GUI/ILightWidgetHost.h"
#include "Mirel/Graphics/CColorDrawer.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Graphics::CRect;
using Tests::CFunctionOf;
using Tests::CUnitCurve;

namespace
{

/// Keeps what is to be painted, and paints it.
class CHost : public GUI::ILightWidgetHost
{
public:
    explicit CHost(GUI::CLightWidget& root_) : root(root_), bitmap(32, {200, 100}) { root.SetHost(this); }
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;
    ~CHost() override { root.SetHost(nullptr); }

    void Paint()
    {
        const auto surface = bitmap.CreateSurface();
        root.GetRecursiveGraphics().Draw(*surface, nullptr);
        areas.clear();
    }

    void InvalidateLight(const CRect& rect) override { areas.push_back(rect); }
    bool IsLightVisible() const override { return true; }
    GUI::CWidget* GetHostWidget() override { return nullptr; }
    void OnLightHidden(GUI::CLightWidget& /*widget*/) override {}
    void OnLightRemoved(GUI::CLightWidget& /*widget*/) override {}
    void OnLightDestroyed(GUI::CLightWidget& /*widget*/) override {}
    void OnLightCursorChanged(GUI::CLightWidget& /*widget*/) override {}
    void SetLightFocus(GUI::CLightWidget* /*widget*/) override {}
    bool CaptureLightMouse(GUI::CLightWidget& /*widget*/) override { return false; }
    void ReleaseLightMouse(GUI::CLightWidget& /*widget*/) override {}

    std::vector<CRect> areas;

private:
    GUI::CLightWidget& root;
    Graphics::CDIBBitmap bitmap;
};

struct CScreen
{
    CScreen() : host(root)
    {
        root.SetGraphics(new Graphics::CColorDrawer({0, 0, 0}), true);
        root.SetSize({200, 100});
    }

    GUI::CLightWidget root;
    CHost host;
};

} // namespace

TEST(CGUICurveViewer, ChangeOfTheCurveInvalidatesItsAreaOnce)
{
    CScreen screen;
    CUnitCurve curve;
    CGUICurveViewer widget(curve, &screen.root);
    widget.Move({20, 10});
    widget.SetSize({100, 50});
    screen.host.Paint();

    curve.SetValue(CFunctionOf([](float x) { return x; }));

    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(20, 10, 100, 50)});
}

TEST(CGUICurveViewer, UnchangedCurveCostsNothing)
{
    CScreen screen;
    CUnitCurve curve;
    const CFunctionOf function([](float x) { return x; });
    curve.SetValue(function);
    CGUICurveViewer widget(curve, &screen.root);
    widget.SetSize({100, 50});
    screen.host.Paint();
    EXPECT_EQ(function.TakeEvaluations(), 100);
    EXPECT_TRUE(screen.host.areas.empty());

    widget.SetSize({100, 50});
    widget.GetCurveGraphics().SetAntiAlias(true);

    EXPECT_TRUE(screen.host.areas.empty());
    EXPECT_EQ(function.TakeEvaluations(), 0);
}

TEST(CGUICurveViewer, HiddenGraphEvaluatesNothing)
{
    CScreen screen;
    CUnitCurve curve;
    const CFunctionOf function([](float x) { return x; });
    CGUICurveViewer widget(curve, &screen.root);
    widget.SetSize({100, 50});
    widget.Show(false);
    screen.host.Paint();

    curve.SetValue(function);
    EXPECT_TRUE(screen.host.areas.empty());
    screen.host.Paint();
    EXPECT_EQ(function.TakeEvaluations(), 0);

    widget.Show(true);
    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(0, 0, 100, 50)});
    screen.host.Paint();
    EXPECT_EQ(function.TakeEvaluations(), 100);
}

TEST(CGUICurveViewer, GraphBehindAnOpaqueWidgetIsNotAskedFor)
{
    CScreen screen;
    CUnitCurve curve;
    CGUICurveViewer widget(curve, &screen.root);
    widget.SetSize({100, 50});
    GUI::CLightWidget cover(&screen.root, new Graphics::CColorDrawer({0, 0, 0}), true);
    cover.SetSize({100, 30});
    screen.host.Paint();

    curve.NotifyChanged();

    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(0, 30, 100, 20)});
}

TEST(GUIWidgets, LeaveTheirObjectsWhenTheyGo)
{
    CScreen screen;
    CUnitCurve curve;
    CUnitCurve other;
    {
        CGUICurveViewer graph(curve, &screen.root);
        CXYCurvesViewer figure(curve, other, &screen.root);
        CGUICurveGridViewer grid(curve, &screen.root);
        CGUIGrid plainGrid(curve.GetInfo().GetXInfo(), curve.GetInfo().GetYInfo(), &screen.root);
        CGUIRuler ruler(curve.GetInfo().GetXInfo(), &screen.root);
        CGUIXCurveRuler xRuler(curve, &screen.root);
        CGUIYCurveRuler yRuler(curve, &screen.root);
        EXPECT_EQ(screen.root.GetChildCount(), 7);
    }
    EXPECT_EQ(screen.root.GetChildCount(), 0);
    curve.NotifyChanged(); // these would reach freed memory
    curve.GetInfo().GetXInfo().SetMax(2.0F);
    curve.GetInfo().GetYInfo().SetMax(2.0F);
    screen.host.Paint();
}

TEST(GUIWidgets, FollowTheirAxes)
{
    CScreen screen;
    CUnitCurve curve;
    CGUICurveGridViewer grid(curve, &screen.root);
    grid.SetSize({50, 40});
    CGUIYCurveRuler ruler(curve, &screen.root);
    ruler.Move({60, 0});
    ruler.SetSize({30, 40});
    EXPECT_TRUE(ruler.GetRulerGraphics().IsVertical());
    EXPECT_EQ(&ruler.GetViewer().GetInfo(), &curve.GetInfo().GetYInfo());
    screen.host.Paint();

    grid.GetXViewer().SetPositionsCount(5);
    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(0, 0, 50, 40)});
    screen.host.Paint();
    ruler.GetViewer().SetPositionsCount(5);
    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(60, 0, 30, 40)});
}

TEST(CXYCurvesViewer, ChangeOfEitherCurveInvalidatesItsArea)
{
    CScreen screen;
    CUnitCurve x;
    CUnitCurve y;
    CXYCurvesViewer widget(x, y, &screen.root);
    widget.SetSize({60, 60});
    screen.host.Paint();
    x.NotifyChanged();
    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(0, 0, 60, 60)});
    screen.host.Paint();
    y.NotifyChanged();
    EXPECT_EQ(screen.host.areas, std::vector<CRect>{CRect(0, 0, 60, 60)});
}
