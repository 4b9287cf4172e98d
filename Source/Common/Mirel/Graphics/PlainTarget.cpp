#include "Mirel/Graphics/PlainTarget.h"

#include "Mirel/Graphics/CBitmapContext.h"

#include <cairo.h>
#include <optional>

namespace Mirel::Graphics
{

namespace
{

/// The whole pixels of a rectangle of the drawing library; no pixels unless its edges are those of pixels.
CRect GetWholePixels(const cairo_rectangle_t& rect)
{
    const CRect whole = {Core::TruncateToInt32(rect.x), Core::TruncateToInt32(rect.y),
                         Core::TruncateToInt32(rect.width), Core::TruncateToInt32(rect.height)};
    const bool same = !(whole.x < rect.x || whole.x > rect.x || whole.y < rect.y || whole.y > rect.y ||
                        whole.width < rect.width || whole.width > rect.width || whole.height < rect.height ||
                        whole.height > rect.height);
    return same ? whole : CRect();
}

/// The clip in the context's own coordinates if it is one rectangle of whole pixels, else no pixels.
CRect GetPlainClip(cairo_t* context)
{
    cairo_rectangle_list_t* list = cairo_copy_clip_rectangle_list(context);
    const bool plain = list->status == CAIRO_STATUS_SUCCESS && list->num_rectangles == 1;
    const CRect clip = plain ? GetWholePixels(list->rectangles[0]) : CRect();
    cairo_rectangle_list_destroy(list);
    return clip;
}

/// The origin in pixels if coordinates are but moved, and by whole pixels.
std::optional<CPoint> GetPlainOrigin(cairo_t* context)
{
    cairo_matrix_t matrix = {};
    cairo_get_matrix(context, &matrix);
    double x = 0.0;
    double y = 0.0;
    cairo_surface_get_device_offset(cairo_get_target(context), &x, &y);
    double scaleX = 1.0;
    double scaleY = 1.0;
    cairo_surface_get_device_scale(cairo_get_target(context), &scaleX, &scaleY);
    const CRect origin = GetWholePixels({matrix.x0, matrix.y0, 1.0, 1.0});
    const auto differs = [](double a, double b) { return a < b || a > b; };
    if (differs(matrix.xx, 1.0) || differs(matrix.yy, 1.0) || differs(matrix.xy, 0.0) ||
        differs(matrix.yx, 0.0) || differs(x, 0.0) || differs(y, 0.0) || differs(scaleX, 1.0) ||
        differs(scaleY, 1.0) || origin.IsEmpty())
    {
        return std::nullopt;
    }
    return origin.GetOrigin();
}

} // namespace

CPixelTarget GetPlainTarget(cairo_t* context, CPoint& origin)
{
    cairo_surface_t* surface = cairo_get_group_target(context);
    if (surface != cairo_get_target(context) || !CBitmapContext::CanView(surface) ||
        cairo_get_operator(context) != CAIRO_OPERATOR_OVER ||
        cairo_get_antialias(context) != CAIRO_ANTIALIAS_DEFAULT)
    {
        return {};
    }
    const auto plainOrigin = GetPlainOrigin(context);
    if (!plainOrigin)
    {
        return {};
    }
    origin = *plainOrigin;
    const CRect clip = GetPlainClip(context);
    const CSize size = {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
    const CRect drawn = Intersect({{clip.x + origin.x, clip.y + origin.y}, clip.GetSize()}, {CPoint(), size});
    return {drawn.IsEmpty() ? nullptr : cairo_image_surface_get_data(surface),
            cairo_image_surface_get_stride(surface), drawn};
}

} // namespace Mirel::Graphics
