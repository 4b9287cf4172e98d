#include "Mirel/DataModel/GUIWidgets/CBaseCurveGraphics.h"

namespace Mirel::DataModel::GUIWidgets
{

void CBaseCurveGraphics::SetSize(Graphics::CSize newSize)
{
    CBaseGraphics::SetSize(newSize);
    extraPixels.SetSize(newSize);
    points.Reserve(CountPoints());
}

void CBaseCurveGraphics::OnLayoutChanged()
{
    points.Reserve(CountPoints());
    RaiseChanged();
}

void CBaseCurveGraphics::TakeUpPen(Graphics::CDrawSurface& surface) const
{
    surface.SetTextNoClip(true);
    surface.SetPenColor(color);
    surface.SetPenStyle(penStyle);
}

} // namespace Mirel::DataModel::GUIWidgets
