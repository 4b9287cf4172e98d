#include "Mirel/GUI/DrawnDialogs/CAlertIcon.h"

#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cairo.h>
#include <numbers>

namespace Mirel::GUI
{

namespace
{

constexpr double fullTurn = 2.0 * std::numbers::pi;

void SetColor(cairo_t* context, Graphics::CColor color)
{
    cairo_set_source_rgb(context, Graphics::ToUnit(color.r), Graphics::ToUnit(color.g),
                         Graphics::ToUnit(color.b));
}

/// In a square of side 1.
void DrawShape(cairo_t* context, EMessageKind kind)
{
    if (kind == EMessageKind::Warning)
    {
        cairo_move_to(context, 0.5, 0.03);
        cairo_line_to(context, 0.99, 0.97);
        cairo_line_to(context, 0.01, 0.97);
        cairo_close_path(context);
    }
    else
    {
        cairo_arc(context, 0.5, 0.5, 0.49, 0.0, fullTurn);
    }
    cairo_fill(context);
}

void DrawDot(cairo_t* context, double y)
{
    cairo_arc(context, 0.5, y, 0.06, 0.0, fullTurn);
    cairo_fill(context);
}

void DrawStroke(cairo_t* context, double x1, double y1, double x2, double y2)
{
    cairo_move_to(context, x1, y1);
    cairo_line_to(context, x2, y2);
    cairo_stroke(context);
}

void DrawSign(cairo_t* context, EMessageKind kind)
{
    cairo_set_line_width(context, 0.1);
    switch (kind)
    {
    case EMessageKind::Information:
        DrawDot(context, 0.27);
        DrawStroke(context, 0.5, 0.41, 0.5, 0.78);
        break;
    case EMessageKind::Warning:
        DrawStroke(context, 0.5, 0.34, 0.5, 0.67);
        DrawDot(context, 0.81);
        break;
    default:
        DrawStroke(context, 0.31, 0.31, 0.69, 0.69);
        DrawStroke(context, 0.31, 0.69, 0.69, 0.31);
    }
}

} // namespace

void CAlertIcon::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    cairo_t* const context = surface.GetNativeContext();
    const int side = std::min(GetSize().width, GetSize().height);
    if (context == nullptr || side < 1)
    {
        return;
    }
    cairo_save(context);
    cairo_scale(context, side, side);
    SetColor(context, kind == EMessageKind::Error ? look.error : look.accent);
    DrawShape(context, kind);
    SetColor(context, look.onAccent);
    DrawSign(context, kind);
    cairo_restore(context);
}

} // namespace Mirel::GUI
