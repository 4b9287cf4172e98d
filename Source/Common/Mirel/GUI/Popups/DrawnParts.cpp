#include "Mirel/GUI/Popups/DrawnParts.h"

#include "Mirel/Graphics/CDrawSurface.h"

namespace Mirel::GUI
{

void DrawFrame(Graphics::CDrawSurface& surface, const CRect& rect, Graphics::CColor color)
{
    surface.SetFillColor(color);
    surface.FillRect({rect.x, rect.y, rect.width, 1});
    surface.FillRect({rect.x, rect.y + rect.height - 1, rect.width, 1});
    surface.FillRect({rect.x, rect.y, 1, rect.height});
    surface.FillRect({rect.x + rect.width - 1, rect.y, 1, rect.height});
}

void DrawLabel(Graphics::CDrawSurface& surface, const Graphics::CSharedFont& font, const std::string& text,
               const CRect& rect, Graphics::CColor color, Graphics::ETextHAlign align)
{
    if (!text.empty())
    {
        Graphics::CTextFormat format;
        format.flags |= Graphics::CTextFormat::ellipsis;
        format.vAlign = Graphics::ETextVAlign::Center;
        format.hAlign = align;
        surface.SetFont(font);
        surface.SetPenColor(color);
        surface.DrawTextInRect(text.c_str(), rect, format);
    }
}

void DrawLines(Graphics::CDrawSurface& surface, const Graphics::CSharedFont& font, const std::string& text,
               const CRect& rect, Graphics::CColor color)
{
    Graphics::CTextFormat format;
    format.flags |= Graphics::CTextFormat::multiline;
    surface.SetFont(font);
    surface.SetPenColor(color);
    surface.DrawTextInRect(text.c_str(), rect, format);
}

void DrawArrow(Graphics::CDrawSurface& surface, CPoint place, EArrow arrow, Graphics::CColor color)
{
    constexpr int depth = 5;
    constexpr int across = 2 * depth - 1;
    surface.SetFillColor(color);
    for (int i = 0; i < depth; ++i)
    {
        const int length = across - 2 * i;
        const bool isReversed = arrow == EArrow::Left || arrow == EArrow::Up;
        const int at = isReversed ? depth - 1 - i : i;
        const bool isFlat = arrow == EArrow::Up || arrow == EArrow::Down;
        surface.FillRect(isFlat ? CRect(place.x + i, place.y + at, length, 1)
                                : CRect(place.x + at, place.y + i, 1, length));
    }
}

void DrawCheckMark(Graphics::CDrawSurface& surface, const CRect& rect, Graphics::CColor color)
{
    const auto x = static_cast<float>(rect.x);
    const auto y = static_cast<float>(rect.y);
    const auto width = static_cast<float>(rect.width);
    const auto height = static_cast<float>(rect.height);
    surface.SetPenColor(color);
    for (const float thickness : {0.0F, 1.0F})
    {
        const Graphics::CPointF points[] = {{x + 0.15F * width, y + 0.5F * height + thickness},
                                            {x + 0.4F * width, y + 0.75F * height + thickness},
                                            {x + 0.85F * width, y + 0.2F * height + thickness}};
        surface.DrawPolylineF(points, 3);
    }
}

} // namespace Mirel::GUI
