#include "Mirel/Graphics/CDrawSurface.h"

#include "Mirel/Graphics/CBitmapAdapter.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Graphics/LineClip.h"
#include "Mirel/Graphics/PlainTarget.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstring>
#include <functional>
#include <iterator>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

constexpr double half = 0.5;
constexpr int fullOpacity = 255;

/// The clip's bounding box in whole pixels, with those that it only touches.
CRect GetOuterClip(cairo_t* context)
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    const int x = Core::TruncateToInt32(std::floor(left));
    const int y = Core::TruncateToInt32(std::floor(top));
    return {x, y, Core::TruncateToInt32(std::ceil(right) - x), Core::TruncateToInt32(std::ceil(bottom) - y)};
}

/// The last pixel of an extent, as far as there are numbers for it.
int GetLast(int first, int length)
{
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{first} + length - 1, INT32_MAX));
}

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

void AddRect(cairo_t* context, const CRect& rect)
{
    cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
}

/// Beyond some millions of pixels the library's own coordinates wrap round, and a zoomed curve goes there:
/// cuts away what lies far outside of the clip. False if nothing is left.
bool ClipToNeighbourhood(CSegment& segment, const CRect& clip)
{
    constexpr double margin = 4.0;
    return ClipSegment(segment, clip.x - margin, clip.y - margin, margin + clip.x + clip.width,
                       margin + clip.y + clip.height);
}

/// A line without length is seen as the pixel that it stands on: one as long as it is wide.
CSegment MakeSeen(const CSegment& s)
{
    const bool isDot = !(s.ax < s.bx || s.ax > s.bx || s.ay < s.by || s.ay > s.by);
    return isDot ? CSegment{s.ax - half, s.ay, s.bx + half, s.by} : s;
}

/// Between the centres of pixels.
template <class Point>
CSegment Between(Point a, Point b)
{
    return {half + static_cast<double>(a.x), half + static_cast<double>(a.y), half + static_cast<double>(b.x),
            half + static_cast<double>(b.y)};
}

/// Half of the pixel.
template <class Point>
CSegment HalfOf(Point point)
{
    const CSegment dot = Between(point, point);
    return {dot.ax + half, dot.ay, dot.bx, dot.by};
}

} // namespace

CDrawSurface::CDrawSurface(cairo_t* context_) : context(context_)
{
    if (context != nullptr)
    {
        cairo_set_line_width(context, 1.0);
        cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    }
}

CDrawSurface::~CDrawSurface()
{
    if (context != nullptr)
    {
        cairo_destroy(context);
    }
}

void CDrawSurface::SetPenStyle(std::uint32_t /*style*/) {}

void CDrawSurface::DrawLine(CPoint a, CPoint b)
{
    StrokeAll(1, [&](int) { return Between(a, b); });
}

void CDrawSurface::DrawPolyline(const CPoint* points, int count)
{
    StrokeAll(count - 1, [&](int i) { return Between(points[i], points[i + 1]); });
}

void CDrawSurface::DrawPoint(CPoint point)
{
    StrokeAll(1, [&](int) { return HalfOf(point); });
}

void CDrawSurface::DrawPoints(const CPoint* points, int count)
{
    StrokeAll(count, [&](int i) { return Between(points[i], points[i]); });
}

void CDrawSurface::DrawRect(const CRect& rect)
{
    if (rect.IsEmpty())
    {
        return;
    }
    const CPoint topLeft = rect.GetOrigin();
    const CPoint bottomRight = {GetLast(rect.x, rect.width), GetLast(rect.y, rect.height)};
    const CPoint corners[] = {
        topLeft, {bottomRight.x, topLeft.y}, bottomRight, {topLeft.x, bottomRight.y}, topLeft};
    DrawPolyline(corners, static_cast<int>(std::size(corners)));
}

void CDrawSurface::DrawLineF(CPointF a, CPointF b)
{
    StrokeAll(1, [&](int) { return Between(a, b); });
}

void CDrawSurface::DrawPolylineF(const CPointF* points, int count)
{
    StrokeAll(count - 1, [&](int i) { return Between(points[i], points[i + 1]); });
}

void CDrawSurface::DrawPointF(CPointF point)
{
    StrokeAll(1, [&](int) { return HalfOf(point); });
}

void CDrawSurface::DrawPointsF(const CPointF* points, int count)
{
    StrokeAll(count, [&](int i) { return Between(points[i], points[i]); });
}

void CDrawSurface::DrawLinesF(const CPointF* ends, int count)
{
    StrokeAll(count / 2, [&](int i) { return Between(ends[2 * i], ends[2 * i + 1]); });
}

void CDrawSurface::FillRect(const CRect& rect)
{
    if (context == nullptr)
    {
        return;
    }
    // The library's own coordinates end at some millions of pixels.
    const CRect seen = Intersect(rect, GetOuterClip(context));
    if (!seen.IsEmpty())
    {
        SetSource(state.fill);
        AddRect(context, seen);
        cairo_fill(context);
    }
}

void CDrawSurface::DrawImage(const CImage& image, CPoint src, CPoint dst, CSize size)
{
    DrawImageAlpha(image, src, dst, size, fullOpacity);
}

void CDrawSurface::DrawImageAlpha(const CImage& image, CPoint src, CPoint dst, CSize size, int opacity)
{
    PaintPart(image.GetContext(), {src, size}, {dst, size}, opacity);
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

void CDrawSurface::Translate(CPoint delta)
{
    if (context != nullptr)
    {
        cairo_translate(context, delta.x, delta.y);
    }
}

void CDrawSurface::Scale(double factor)
{
    if (context != nullptr)
    {
        cairo_scale(context, factor, factor);
    }
}

double CDrawSurface::GetScale() const
{
    if (context == nullptr)
    {
        return 1.0;
    }
    cairo_matrix_t matrix = {};
    cairo_get_matrix(context, &matrix);
    return matrix.xx;
}

CPoint CDrawSurface::GetTranslation() const
{
    if (context == nullptr)
    {
        return {};
    }
    cairo_matrix_t matrix = {};
    cairo_get_matrix(context, &matrix);
    return {RoundToPixel(matrix.x0), RoundToPixel(matrix.y0)};
}

CRect CDrawSurface::GetClipBox() const
{
    if (context == nullptr)
    {
        return {};
    }
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    return {Core::TruncateToInt32(left), Core::TruncateToInt32(top), RoundToPixel(right - left),
            RoundToPixel(bottom - top)};
}

void CDrawSurface::ClipToRect(const CRect& rect)
{
    if (context != nullptr)
    {
        AddRect(context, Intersect(rect, GetOuterClip(context)));
        cairo_clip(context);
    }
}

void CDrawSurface::SaveState()
{
    saved.push_back(state);
    if (context != nullptr)
    {
        cairo_save(context);
    }
}

void CDrawSurface::RestoreState()
{
    if (saved.empty())
    {
        return;
    }
    state = saved.back();
    saved.pop_back();
    if (context != nullptr)
    {
        cairo_restore(context);
    }
}

int CDrawSurface::GetDeviceScale() const
{
    double x = 1.0;
    double y = 1.0;
    if (context != nullptr)
    {
        cairo_surface_get_device_scale(cairo_get_target(context), &x, &y);
    }
    return std::clamp(Core::TruncateToInt32(x), 1, CLimits::maxDeviceScale);
}

CBitmap* CDrawSurface::GetBitmap()
{
    cairo_surface_t* target = context == nullptr ? nullptr : cairo_get_target(context);
    auto found = CBitmapContext::CreateView(target);
    if (found == nullptr)
    {
        return nullptr;
    }
    if (view == nullptr || view->GetData() != found->GetData() || view->GetSize() != found->GetSize())
    {
        view = std::move(found);
    }
    if (bitmap == nullptr)
    {
        bitmap = std::make_unique<CBitmapAdapter>();
    }
    bitmap->Attach(view.get());
    return bitmap.get();
}

CSize CDrawSurface::GetContextSize() const
{
    const auto found = context == nullptr ? nullptr : CBitmapContext::CreateView(cairo_get_target(context));
    return found == nullptr ? CSize() : found->GetScaledSize();
}

void CDrawSurface::SetSource(CColor color)
{
    cairo_set_source_rgb(context, ToUnit(color.r), ToUnit(color.g), ToUnit(color.b));
}

void CDrawSurface::Stroke(const CSegment& segment)
{
    const CRect clip = GetOuterClip(context);
    CSegment seen = MakeSeen(segment);
    if (clip.IsEmpty() || !ClipToNeighbourhood(seen, clip))
    {
        return;
    }
    SetSource(state.pen);
    cairo_move_to(context, seen.ax, seen.ay);
    cairo_line_to(context, seen.bx, seen.by);
    cairo_stroke(context);
}

template <class SegmentAt>
void CDrawSurface::StrokeAll(int count, const SegmentAt& segmentAt)
{
    if (context == nullptr || count < 1)
    {
        return;
    }
    CPoint origin;
    const CPixelTarget target = GetPlainTarget(context, origin);
    if (target.data == nullptr)
    {
        for (int i = 0; i < count; ++i)
        {
            Stroke(segmentAt(i));
        }
        return;
    }
    cairo_surface_flush(cairo_get_target(context));
    for (int i = 0; i < count; ++i)
    {
        const CSegment s = segmentAt(i);
        CSegment seen = MakeSeen({s.ax + origin.x, s.ay + origin.y, s.bx + origin.x, s.by + origin.y});
        if (ClipToNeighbourhood(seen, target.clip))
        {
            rasterizer.DrawSegment(target, state.pen, seen);
        }
    }
    cairo_surface_mark_dirty(cairo_get_target(context));
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
