#include "Mirel/GUI/DrawnDialogs/CAlertIcon.h"

#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Mirel::GUI
{

void CAlertIcon::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    const int side = std::min(GetSize().width, GetSize().height);
    if (side > 0)
    {
        DrawShape(surface, static_cast<float>(side));
        DrawSign(surface, side);
    }
}

/// Made of lines across, whose ends are smooth.
void CAlertIcon::DrawShape(Graphics::CDrawSurface& surface, float side) const
{
    const float radius = side / 2.0F;
    const float middle = radius - 0.5F;
    surface.SetPenColor(kind == EMessageKind::Error ? look.error : look.accent);
    const int rows = Core::TruncateToInt32(side);
    for (int row = 0; row < rows; ++row)
    {
        const auto y = static_cast<float>(row);
        const float height = y - middle;
        const float half = kind == EMessageKind::Warning
                               ? (y + 0.5F) * 0.5F
                               : std::sqrt(std::max(radius * radius - height * height, 0.0F));
        surface.DrawLineF({middle - half, y}, {middle + half, y});
    }
}

void CAlertIcon::DrawSign(Graphics::CDrawSurface& surface, int side) const
{
    constexpr int thickness = 3;
    const int middle = (side - thickness) / 2;
    surface.SetFillColor(look.onAccent);
    surface.SetPenColor(look.onAccent);
    switch (kind)
    {
    case EMessageKind::Information:
        surface.FillRect({middle, side / 4, thickness, thickness});
        surface.FillRect({middle, side / 4 + thickness + 2, thickness, side / 3 + 1});
        break;
    case EMessageKind::Warning:
        surface.FillRect({middle, side / 3, thickness, side / 3});
        surface.FillRect({middle, side / 3 * 2 + 3, thickness, thickness});
        break;
    default:
        const auto low = static_cast<float>(side) * 0.3F;
        const auto high = static_cast<float>(side) * 0.7F - 1.0F;
        for (const float shift : std::array<float, 5>{-1.0F, -0.5F, 0.0F, 0.5F, 1.0F})
        {
            surface.DrawLineF({low + shift, low - shift}, {high + shift, high - shift});
            surface.DrawLineF({low + shift, high + shift}, {high + shift, low + shift});
        }
    }
}

} // namespace Mirel::GUI
