#include "Mirel/GUI/Popups/CTooltipGraphics.h"

#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDrawSurface.h"

namespace Mirel::GUI
{

namespace
{

constexpr int widestText = 360;

CSize GetPadding(const STooltip& tip)
{
    return tip.isBalloon ? CSize{12, 9} : CSize{7, 4};
}

CSize GetTipSize(const STooltip& tip, const CPopupLook& look)
{
    const CSize text = MeasureText(look.font, tip.text, widestText);
    const CSize padding = GetPadding(tip);
    return {text.width + 2 * padding.width, text.height + 2 * padding.height};
}

} // namespace

CTooltipGraphics::CTooltipGraphics(const STooltip& tip_, const CPopupLook& look_)
    : CBaseGraphics(GetTipSize(tip_, look_)),
      tip(tip_),
      look(look_)
{
}

void CTooltipGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    constexpr int balloonEdge = 3;
    const CRect area = GetArea();
    const CSize padding = GetPadding(tip);
    const Graphics::CColor text = tip.textColor.value_or(look.text);
    surface.SetFillColor(tip.background.value_or(look.background));
    surface.FillRect(area);
    DrawFrame(surface, area, tip.isBalloon ? text : look.border);
    if (tip.isBalloon)
    {
        surface.SetFillColor(text);
        surface.FillRect({0, 0, balloonEdge, area.height});
    }
    // A pixel more, so that a text as wide as the measure is not broken again.
    DrawLines(
        surface, look.font, tip.text,
        {padding.width, padding.height, area.width - 2 * padding.width + 1, area.height - 2 * padding.height},
        text);
}

} // namespace Mirel::GUI
