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
    : xViewer(xViewer_),
      yViewer(yViewer_),
      extraPixels(xViewer_.GetYViewer(), yViewer_.GetYViewer()),
      xLayoutConnection(&xViewer_.GetLayoutChangedEventProvider(), &curvesChanged),
      xCurveConnection(&xViewer_.GetCurveChangedEventProvider(), &curvesChanged),
      yLayoutConnection(&yViewer_.GetLayoutChangedEventProvider(), &curvesChanged),
      yCurveConnection(&yViewer_.GetCurveChangedEventProvider(), &curvesChanged)
{
    ReservePoints();
}

void CXYCurvesGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    if (GetSize().IsEmpty() || !(positionsCount > 1.0F))
    {
        return;
    }
    surface.SetTextNoClip(true);
    surface.SetPenColor(color);
    surface.SetPenStyle(penStyle);
    if (antiAlias)
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
    if (graphStyle == GraphStyleCurve)
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
        const float x = xViewer.GetValue(t, curveAccessMode);
        const float y = yViewer.GetValue(t, curveAccessMode);
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

void CXYCurvesGraphics::SetSize(Graphics::CSize newSize)
{
    CBaseGraphics::SetSize(newSize);
    extraPixels.SetSize(newSize);
}

void CXYCurvesGraphics::SetColor(Graphics::CColor newColor)
{
    if (color != newColor)
    {
        color = newColor;
        RaiseChanged();
    }
}

void CXYCurvesGraphics::SetPenStyle(std::uint32_t newPenStyle)
{
    if (penStyle != newPenStyle)
    {
        penStyle = newPenStyle;
        RaiseChanged();
    }
}

void CXYCurvesGraphics::SetGraphStyle(std::uint32_t newGraphStyle)
{
    if (graphStyle != newGraphStyle)
    {
        graphStyle = newGraphStyle;
        RaiseChanged();
    }
}

void CXYCurvesGraphics::SetAntiAlias(bool newAntiAlias)
{
    if (antiAlias != newAntiAlias)
    {
        antiAlias = newAntiAlias;
        RaiseChanged();
    }
}

void CXYCurvesGraphics::SetCurveAccessMode(bool newCurveAccessMode)
{
    if (curveAccessMode != newCurveAccessMode)
    {
        curveAccessMode = newCurveAccessMode;
        RaiseChanged();
    }
}

void CXYCurvesGraphics::SetPositionsCount(float newPositionsCount)
{
    if (positionsCount < newPositionsCount || positionsCount > newPositionsCount)
    {
        positionsCount = newPositionsCount;
        ReservePoints();
        RaiseChanged();
    }
}

void CXYCurvesGraphics::ReservePoints()
{
    points.Reserve(CountPoints());
}

} // namespace Mirel::DataModel::GUIWidgets
