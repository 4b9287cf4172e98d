#include "Mirel/DataModel/GUIWidgets/CXYCurvesGraphics.h"

#include "Mirel/DataModel/GUIWidgets/Limits.h"
#include "Mirel/DataModel/GUIWidgets/PlotForms.h"
#include "Mirel/DataModel/GUIWidgets/TPointsPen.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace Mirel::DataModel::GUIWidgets
{

CXYCurvesGraphics::CXYCurvesGraphics(const Controls::CCurveViewer& xViewer_,
                                     const Controls::CCurveViewer& yViewer_)
    : CBaseCurveGraphics(GraphStyleDots, xViewer_.GetYViewer(), yViewer_.GetYViewer()),
      xViewer(xViewer_),
      yViewer(yViewer_),
      xLayoutConnection(&xViewer_.GetLayoutChangedEventProvider(), &curvesChanged),
      xCurveConnection(&xViewer_.GetCurveChangedEventProvider(), &curvesChanged),
      yLayoutConnection(&yViewer_.GetLayoutChangedEventProvider(), &curvesChanged),
      yCurveConnection(&yViewer_.GetCurveChangedEventProvider(), &curvesChanged)
{
    points.Reserve(CXYCurvesGraphics::CountPoints());
}

void CXYCurvesGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    if (GetSize().IsEmpty() || !(positionsCount > 1.0F))
    {
        return;
    }
    TakeUpPen(surface);
    if (GetAntiAlias())
    {
        DrawForm<CExactPixels>(surface);
    }
    else
    {
        DrawForm<CWholePixels>(surface);
    }
}

template <class Form>
void CXYCurvesGraphics::DrawForm(Graphics::CDrawSurface& surface)
{
    using Point = typename Form::Point;
    const std::span<Point> buffer(points.Get(static_cast<Point*>(nullptr)));
    if (GetGraphStyle() == GraphStyleCurve)
    {
        AddPoints<Form>(TPointsPen(buffer, 1,
                                   [&surface](const Point* corners, int count)
                                   { Form::DrawPolyline(surface, corners, count); }));
    }
    else
    {
        AddPoints<Form>(TPointsPen(
            buffer, 0, [&surface](const Point* dots, int count) { Form::DrawPoints(surface, dots, count); }));
    }
}

template <class Form, class Pen>
void CXYCurvesGraphics::AddPoints(Pen pen) const
{
    const Graphics::CSize area = GetSize();
    const int count = CountPoints();
    const float step = 1.0F / (std::min(positionsCount, static_cast<float>(CLimits::maxSamples)) - 1.0F);
    float t = 0.0F;
    for (int i = 0; i < count; ++i)
    {
        const float x = xViewer.GetValue(t, GetCurveAccessMode());
        const float y = yViewer.GetValue(t, GetCurveAccessMode());
        t += step;
        if (std::isfinite(x) && std::isfinite(y))
        {
            pen.Add({Form::FromValueRightward(x, area.width), Form::FromValue(y, area.height)});
        }
        else
        {
            pen.Break();
        }
    }
    pen.Break();
}

int CXYCurvesGraphics::CountPoints() const
{
    const float count = std::min(positionsCount, static_cast<float>(CLimits::maxSamples));
    return count > 1.0F ? Graphics::RoundToPixel(static_cast<double>(count)) : 0;
}

} // namespace Mirel::DataModel::GUIWidgets
