#include "Mirel/Graphics/CTextLayout.h"

#include <algorithm>
#include <cmath>
#include <pango/pangocairo.h>

namespace Mirel::Graphics
{

namespace
{

double GetLineWidth(PangoLayoutLine* line)
{
    PangoRectangle logical = {};
    pango_layout_line_get_extents(line, nullptr, &logical);
    return static_cast<double>(logical.width) / PANGO_SCALE;
}

} // namespace

CTextLayout::CTextLayout(PangoLayout* layout_, double ascent_, double descent_)
    : layout(layout_),
      ascent(ascent_),
      descent(descent_)
{
    for (int i = 0; i < GetLineCount(); ++i)
    {
        width = std::max(width, GetLineWidth(pango_layout_get_line_readonly(layout, i)));
    }
}

CTextLayout::~CTextLayout()
{
    g_object_unref(layout);
}

int CTextLayout::GetLineCount() const
{
    return pango_layout_get_line_count(layout);
}

double CTextLayout::GetHeight() const
{
    return (GetLineCount() - 1) * GetPitch() + ascent + descent;
}

double CTextLayout::GetPitch() const
{
    return std::ceil(ascent + descent);
}

CSize CTextLayout::GetExtent() const
{
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(GetHeight()))};
}

void CTextLayout::Draw(cairo_t* context, double x, double y, double boxWidth, ETextHAlign align) const
{
    for (int i = 0; i < GetLineCount(); ++i)
    {
        PangoLayoutLine* line = pango_layout_get_line_readonly(layout, i);
        const double rest = boxWidth - GetLineWidth(line);
        const double shift = align == ETextHAlign::Right    ? rest
                             : align == ETextHAlign::Center ? rest * 0.5
                                                            : 0.0;
        cairo_move_to(context, x + shift, y + i * GetPitch());
        pango_cairo_show_layout_line(context, line);
    }
}

} // namespace Mirel::Graphics
