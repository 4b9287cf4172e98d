#include "Mirel/Graphics/CColorDrawer.h"

#include "Mirel/Graphics/CDrawSurface.h"

namespace Mirel::Graphics
{

void CColorDrawer::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    surface.SetFillColor(color);
    surface.FillRect(GetBounds(region));
}

void CColorDrawer::SetColor(CColor newColor)
{
    if (newColor.Pack() != color.Pack())
    {
        color = newColor;
        RaiseChanged();
    }
}

} // namespace Mirel::Graphics
