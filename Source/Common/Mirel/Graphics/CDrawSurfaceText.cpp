// The operations of CDrawSurface for texts.

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/TextPlacing.h"

#include <algorithm>
#include <cairo.h>

namespace Mirel::Graphics
{

namespace
{

/// The request of a format for a box of that width.
CTextLayoutRequest GetRequest(const CTextFormat& format, double width)
{
    constexpr std::uint32_t heeded = CTextFormat::multiline | CTextFormat::noWrap | CTextFormat::ellipsis;
    const std::uint32_t flags = format.flags & heeded;
    const bool needsWidth =
        flags != 0 && flags != (CTextFormat::multiline | CTextFormat::noWrap) && flags != CTextFormat::noWrap;
    return {flags, needsWidth ? std::max(Core::TruncateToInt32(width), 0) : -1};
}

} // namespace

void CDrawSurface::DrawText(const char* text, CPoint point)
{
    const auto layout = context == nullptr || font == nullptr ? nullptr : font->LayOut(text, {});
    if (layout == nullptr)
    {
        return;
    }
    cairo_save(context);
    if (!textNoClip)
    {
        ClipToRect({point, layout->GetExtent()});
    }
    SetSource(state.pen);
    layout->Draw(context, point.x, point.y + font->GetAscent(), 0.0, ETextHAlign::Left);
    cairo_restore(context);
}

void CDrawSurface::DrawTextInRect(const char* text, const CRect& rect, const CTextFormat& format)
{
    if (context == nullptr || font == nullptr || !format.Has(CTextFormat::wordBreak))
    {
        return;
    }
    const float escapement = font->GetDescription().escapement;
    const double lineHeight = font->GetAscent() + font->GetDescent();
    const CTurnedBox box = TurnIn(rect.GetSize(), escapement, lineHeight);
    const auto layout = font->LayOut(text, GetRequest(format, box.width));
    if (layout == nullptr)
    {
        return;
    }
    cairo_save(context);
    if (!textNoClip)
    {
        ClipToRect(rect);
    }
    cairo_translate(context, rect.x + box.originX, rect.y + box.originY);
    cairo_rotate(context, -box.angle);
    SetSource(state.pen);
    layout->Draw(context, 0.0, GetBaseline(box.height, layout->GetHeight(), font->GetAscent(), format.vAlign),
                 box.width, format.hAlign);
    cairo_restore(context);
}

CSize CDrawSurface::GetTextExtent(const char* text) const
{
    return MeasureText(font.get(), text, {});
}

CSize CDrawSurface::GetTextExtentInRect(const char* text, const CRect& rect, const CTextFormat& format) const
{
    return format.Has(CTextFormat::calculate) ? MeasureText(font.get(), text, GetRequest(format, rect.width))
                                              : CSize();
}

CSize CDrawSurface::GetTextExtentUnrotated(const char* text) const
{
    const auto layout = font == nullptr ? nullptr : font->LayOut(text, {});
    return layout == nullptr ? CSize() : layout->GetExtent();
}

} // namespace Mirel::Graphics
