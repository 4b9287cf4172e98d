#include "Mirel/GUI/CCustomWidget.h"

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

namespace Mirel::GUI
{

void CCustomWidget::SetBackgroundColor(Graphics::CColor color)
{
    if (color.Pack() != background.Pack())
    {
        background = color;
        Invalidate();
    }
}

void CCustomWidget::Draw(const COSXNativeDrawEvent& event)
{
    if (!noErase)
    {
        event.surface.SetFillColor(background);
        event.surface.FillRect(event.region.GetBounds());
    }
    CWidget::Draw(event);
}

} // namespace Mirel::GUI
