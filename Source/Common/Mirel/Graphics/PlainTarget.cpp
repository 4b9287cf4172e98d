#include "Mirel/Graphics/PlainTarget.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Limits.h"

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

/// The clip in pixels of the surface if it is one rectangle of whole pixels, else no pixels.
CRect GetPlainClip(cairo_t* context, const CPixelPlace& place)
{
    cairo_rectangle_list_t* list = cairo_copy_clip_rectangle_list(context);
    CRect clip;
    if (list->status == CAIRO_STATUS_SUCCESS && list->num_rectangles == 1)
    {
        const cairo_rectangle_t& only = list->rectangles[0];
        clip = GetWholePixels({only.x * place.scale + place.origin.x, only.y * place.scale + place.origin.y,
                               only.width * place.scale, only.height * place.scale});
    }
    cairo_rectangle_list_destroy(list);
    return clip;
}

bool Differs(double a, double b)
{
    return a < b || a > b;
}

/// None unless coordinates are but multiplied and moved, both by whole numbers.
std::optional<CPixelPlace> GetPlainPlace(cairo_t* context)
{
    double x = 0.0;
    double y = 0.0;
    cairo_surface_get_device_offset(cairo_get_target(context), &x, &y);
    double scaleX = 1.0;
    double scaleY = 1.0;
    cairo_surface_get_device_scale(cairo_get_target(context), &scaleX, &scaleY);
    cairo_matrix_t matrix = {};
    cairo_get_matrix(context, &matrix);
    const double scale = matrix.xx * scaleX;
    const CRect moved = GetWholePixels({matrix.x0 * scaleX, matrix.y0 * scaleY, scale, scale});
    if (Differs(matrix.yy * scaleY, scale) || Differs(matrix.xy, 0.0) || Differs(matrix.yx, 0.0) ||
        Differs(x, 0.0) || Differs(y, 0.0) || moved.IsEmpty() || moved.width > CLimits::maxDeviceScale)
    {
        return std::nullopt;
    }
    return CPixelPlace{moved.GetOrigin(), moved.width};
}

} // namespace

CPixelTarget GetPlainTarget(cairo_t* context, CPixelPlace& place)
{
    cairo_surface_t* surface = cairo_get_group_target(context);
    if (surface != cairo_get_target(context) || !CBitmapContext::CanView(surface) ||
        cairo_get_operator(context) != CAIRO_OPERATOR_OVER ||
        cairo_get_antialias(context) != CAIRO_ANTIALIAS_DEFAULT)
    {
        return {};
    }
    const auto plainPlace = GetPlainPlace(context);
    if (!plainPlace)
    {
        return {};
    }
    place = *plainPlace;
    const CSize size = {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
    const CRect drawn = Intersect(GetPlainClip(context, place), {CPoint(), size});
    return {drawn.IsEmpty() ? nullptr : cairo_image_surface_get_data(surface),
            cairo_image_surface_get_stride(surface), drawn};
}

} // namespace Mirel::Graphics
