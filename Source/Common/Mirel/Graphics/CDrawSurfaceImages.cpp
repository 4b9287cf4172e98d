// The operations of CDrawSurface for images, bitmaps and layers.

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/ContextArea.h"

#include <algorithm>
#include <cairo.h>
#include <cstring>
#include <functional>

namespace Mirel::Graphics
{

namespace
{

constexpr int fullOpacity = 255;

/// Whether two image surfaces use some of the same bytes.
bool Overlap(cairo_surface_t* a, cairo_surface_t* b)
{
    if (!CBitmapContext::CanView(a) || !CBitmapContext::CanView(b))
    {
        return false;
    }
    const auto begin = [](cairo_surface_t* surface) { return cairo_image_surface_get_data(surface); };
    const auto end = [](cairo_surface_t* surface)
    {
        return cairo_image_surface_get_data(surface) +
               std::int64_t{cairo_image_surface_get_stride(surface)} *
                   (cairo_image_surface_get_height(surface) - 1) +
               std::int64_t{4} * cairo_image_surface_get_width(surface);
    };
    const std::less<> before;
    return before(begin(a), end(b)) && before(begin(b), end(a));
}

/// The pixels of that part to draw from; copied if they are drawn onto themselves, where the library would
/// read what it has just written. For the caller to destroy; none if there is no such part.
cairo_surface_t* CreateSource(CBitmapContext& pixels, const CRect& part, cairo_surface_t* target)
{
    cairo_surface_t* source = pixels.CreateSubImage(part);
    if (source == nullptr || !Overlap(source, target))
    {
        return source;
    }
    cairo_surface_flush(target);
    cairo_surface_t* copy =
        cairo_image_surface_create(cairo_image_surface_get_format(source), part.width, part.height);
    if (!CBitmapContext::CanView(copy))
    {
        cairo_surface_destroy(copy);
        cairo_surface_destroy(source);
        return nullptr;
    }
    for (int y = 0; y < part.height; ++y)
    {
        const auto row = [y](cairo_surface_t* surface) {
            return cairo_image_surface_get_data(surface) +
                   std::int64_t{cairo_image_surface_get_stride(surface)} * y;
        };
        std::memcpy(row(copy), row(source), static_cast<std::size_t>(part.width) * 4);
    }
    cairo_surface_mark_dirty(copy);
    cairo_surface_destroy(source);
    return copy;
}

} // namespace

void CDrawSurface::DrawImage(const CImage& image, CPoint src, CPoint dst, CSize size)
{
    DrawImageAlpha(image, src, dst, size, fullOpacity);
}

void CDrawSurface::DrawImageAlpha(const CImage& image, CPoint src, CPoint dst, CSize size, int opacity)
{
    if (context == nullptr || image.HasAlpha() || opacity < fullOpacity)
    {
        PaintPart(image.GetContext(), {src, size}, {dst, size}, opacity);
        return;
    }
    // Takes the place of what is there without reading it: half the time for the screens that traces stand
    // on.
    const cairo_operator_t before = cairo_get_operator(context);
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    PaintPart(image.GetContext(), {src, size}, {dst, size}, opacity);
    cairo_set_operator(context, before);
}

void CDrawSurface::StretchImage(const CImage& image, const CRect& src, const CRect& dst)
{
    PaintPart(image.GetContext(), src, dst, fullOpacity);
}

void CDrawSurface::DrawBitmap(const CBitmap& bitmap_, CPoint src, CPoint dst, CSize size)
{
    DrawBitmapAlpha(bitmap_, src, dst, size, fullOpacity);
}

void CDrawSurface::DrawBitmapAlpha(const CBitmap& bitmap_, CPoint src, CPoint dst, CSize size, int opacity)
{
    PaintPart(bitmap_.GetContext(), {src, size}, {dst, size}, opacity);
}

void CDrawSurface::StretchBitmap(const CBitmap& bitmap_, const CRect& src, const CRect& dst)
{
    PaintPart(bitmap_.GetContext(), src, dst, fullOpacity);
}

void CDrawSurface::DrawLayer(const CLayer& layer, CPoint point)
{
    DrawBitmap(layer, CPoint(), point, layer.GetSize());
}

void CDrawSurface::DrawLayerAlpha(const CLayer& layer, CPoint point, int opacity)
{
    DrawBitmapAlpha(layer, CPoint(), point, layer.GetSize(), opacity);
}

void CDrawSurface::DrawLayerInRect(const CLayer& layer, const CRect& rect)
{
    StretchBitmap(layer, {CPoint(), layer.GetSize()}, rect);
}

void CDrawSurface::PaintPart(CBitmapContext* pixels, const CRect& src, const CRect& dst, int opacity)
{
    if (context == nullptr || pixels == nullptr || src.IsEmpty() || dst.IsEmpty() || opacity <= 0)
    {
        return;
    }
    const CRect whole = {CPoint(), pixels->GetScaledSize()};
    const CRect part = Intersect(src, whole);
    const CRect seen = Intersect(dst, GetOuterClip(context));
    const int scale = pixels->GetScale();
    cairo_surface_t* source =
        seen.IsEmpty() || part.IsEmpty()
            ? nullptr
            : CreateSource(*pixels, {part.x * scale, part.y * scale, part.width * scale, part.height * scale},
                           cairo_get_target(context));
    if (source == nullptr)
    {
        return;
    }
    const double scaleX = static_cast<double>(dst.width) / src.width;
    const double scaleY = static_cast<double>(dst.height) / src.height;
    cairo_save(context);
    AddRect(context, seen);
    cairo_clip(context);
    cairo_translate(context, dst.x + (static_cast<double>(part.x) - src.x) * scaleX,
                    dst.y + (static_cast<double>(part.y) - src.y) * scaleY);
    cairo_scale(context, scaleX, scaleY);
    if (part != src)
    {
        cairo_rectangle(context, 0.0, 0.0, part.width, part.height);
        cairo_clip(context);
    }
    cairo_surface_set_device_scale(source, scale, scale);
    cairo_set_source_surface(context, source, 0.0, 0.0);
    // The edges of a scaled picture do not fade into nothing.
    cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
    cairo_paint_with_alpha(context, ToUnit(std::min(opacity, fullOpacity)));
    cairo_restore(context);
    cairo_surface_destroy(source);
}

} // namespace Mirel::Graphics
