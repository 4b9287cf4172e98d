#include "Mirel/DataModel/GUIWidgets/CGridGraphics.h"

#include "Mirel/DataModel/GUIWidgets/AxisZero.h"
#include "Mirel/DataModel/GUIWidgets/GridLines.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <array>

namespace Mirel::DataModel::GUIWidgets
{

using Graphics::CPoint;

CGridGraphics::CGridGraphics(const Controls::CParamViewerConfig& xAxis_,
                             const Controls::CParamViewerConfig& yAxis_)
    : xAxis(xAxis_),
      yAxis(yAxis_),
      extraPixels(xAxis_, yAxis_),
      xConnection(&xAxis_.GetLayoutChangedEventProvider(), &layoutChanged),
      yConnection(&yAxis_.GetLayoutChangedEventProvider(), &layoutChanged)
{
}

void CGridGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    const Graphics::CSize area = GetSize();
    if (area.IsEmpty())
    {
        return;
    }
    const int right = area.width - 1;
    const int bottom = area.height - 1;
    surface.SaveState();
    surface.SetTextNoClip(true);
    if (xLines)
    {
        DrawAxis(surface, MakeAxis(xAxis, xSubdivisions, area.width),
                 [bottom](int x) {
                     return std::array<CPoint, 2>{{{x, 0}, {x, bottom}}};
                 });
    }
    if (yLines)
    {
        DrawAxis(surface, MakeAxis(yAxis, ySubdivisions, area.height),
                 [right, bottom](int y) {
                     return std::array<CPoint, 2>{{{0, bottom - y}, {right, bottom - y}}};
                 });
    }
    surface.RestoreState();
}

CGridAxis CGridGraphics::MakeAxis(const Controls::CParamViewerConfig& viewer, int subdivisions, int length)
{
    const float visible = viewer.GetVisiblePositions();
    return {visible < 0.0F ? static_cast<float>(length) : visible, GetZeroPosition(viewer), subdivisions,
            length};
}

template <class ToEnds>
void CGridGraphics::DrawAxis(Graphics::CDrawSurface& surface, const CGridAxis& axis, ToEnds toEnds) const
{
    ForEachGridLine(axis,
                    [&](EGridLine kind, int pixel)
                    {
                        const CPen& used = kind == EGridLine::Subdivision ? subdivisionPen
                                           : kind == EGridLine::Major     ? pen
                                                                          : originPen;
                        surface.SetPenColor(used.color);
                        surface.SetPenStyle(used.style);
                        const std::array<CPoint, 2> ends = toEnds(pixel);
                        surface.DrawLine(ends[0], ends[1]);
                    });
}

void CGridGraphics::SetSize(Graphics::CSize newSize)
{
    CBaseGraphics::SetSize(newSize);
    extraPixels.SetSize(newSize);
}

} // namespace Mirel::DataModel::GUIWidgets
