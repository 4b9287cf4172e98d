#include "Mirel/Graphics/CTextDrawer.h"

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/TextPlacing.h"

#include <utility>

namespace Mirel::Graphics
{

void CTextDrawer::Draw(CDrawSurface& surface, const CSimple2DRegion* /*region*/)
{
    surface.SetFont(font);
    surface.SetPenColor(color);
    surface.DrawTextInRect(text.c_str(), GetArea(), format);
}

CSize CTextDrawer::GetNaturalSize(int width) const
{
    return MeasureText(font.get(), text.c_str(), {format.flags, width > 0 ? width : -1});
}

void CTextDrawer::SetText(const char* newText)
{
    if (text != newText)
    {
        text = newText;
        RaiseChanged();
    }
}

void CTextDrawer::SetColor(CColor newColor)
{
    if (newColor != color)
    {
        color = newColor;
        RaiseChanged();
    }
}

void CTextDrawer::SetFont(CSharedFont newFont)
{
    if (newFont != font)
    {
        font = std::move(newFont);
        RaiseChanged();
    }
}

void CTextDrawer::SetFormat(const CTextFormat& newFormat)
{
    if (newFormat != format)
    {
        format = newFormat;
        RaiseChanged();
    }
}

} // namespace Mirel::Graphics
