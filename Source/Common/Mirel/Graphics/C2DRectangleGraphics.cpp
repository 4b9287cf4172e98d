#include "Mirel/Graphics/C2DRectangleGraphics.h"

#include "Mirel/Graphics/CDrawSurface.h"

namespace Mirel::Graphics
{

void C2DRectangleGraphics::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    const CRect drawn = Intersect(GetArea(), GetBounds(region));
    if (drawn.IsEmpty())
    {
        return;
    }
    surface.SetTextNoClip(true);
    surface.SetPenColor(color);
    surface.SetPenStyle(penStyle);
    surface.DrawRect(drawn);
}

void C2DRectangleGraphics::SetColor(CColor newColor)
{
    if (newColor.Pack() != color.Pack())
    {
        color = newColor;
        RaiseChanged();
    }
}

void C2DRectangleGraphics::SetPenStyle(std::uint32_t newPenStyle)
{
    if (newPenStyle != penStyle)
    {
        penStyle = newPenStyle;
        RaiseChanged();
    }
}

} // namespace Mirel::Graphics
