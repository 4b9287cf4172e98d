#include "Mirel/Graphics/CDrawSurface.h"

#include "Mirel/Graphics/CBitmapAdapter.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/LineClip.h"
#include "Mirel/Graphics/PlainTarget.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
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
CSegment MakeSeen(double ax, double ay, double bx, double by)
{
    const bool isDot = !(ax < bx || ax > bx || ay < by || ay > by);
    return isDot ? CSegment{ax - half, ay, bx + half, by} : CSegment{ax, ay, bx, by};
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
    Stroke(a.x + half, a.y + half, b.x + half, b.y + half);
}

void CDrawSurface::DrawPolyline(const CPoint* points, int count)
{
    StrokeAll(points, count);
}

void CDrawSurface::DrawPoint(CPoint point)
{
    Stroke(point.x + 1.0, point.y + half, point.x + half, point.y + half);
}

void CDrawSurface::DrawPoints(const CPoint* points, int count)
{
    for (int i = 0; i < count; ++i)
    {
        DrawLine(points[i], points[i]);
    }
}

void CDrawSurface::DrawRect(const CRect& rect)
{
    if (rect.IsEmpty())
    {
        return;
    }
    const CPoint topLeft = rect.GetOrigin();
    const CPoint bottomRight = {GetLast(rect.x, rect.width), GetLast(rect.y, rect.height)};
    const CPoint topRight = {bottomRight.x, topLeft.y};
    const CPoint bottomLeft = {topLeft.x, bottomRight.y};
    DrawLine(topLeft, topRight);
    DrawLine(topRight, bottomRight);
    DrawLine(bottomRight, bottomLeft);
    DrawLine(bottomLeft, topLeft);
}

void CDrawSurface::DrawLineF(CPointF a, CPointF b)
{
    Stroke(static_cast<double>(a.x) + half, static_cast<double>(a.y) + half, static_cast<double>(b.x) + half,
           static_cast<double>(b.y) + half);
}

void CDrawSurface::DrawPolylineF(const CPointF* points, int count)
{
    StrokeAll(points, count);
}

void CDrawSurface::DrawPointF(CPointF point)
{
    Stroke(static_cast<double>(point.x) + 1.0, static_cast<double>(point.y) + half,
           static_cast<double>(point.x) + half, static_cast<double>(point.y) + half);
}

void CDrawSurface::DrawPointsF(const CPointF* points, int count)
{
    for (int i = 0; i < count; ++i)
    {
        DrawLineF(points[i], points[i]);
    }
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
    return Core::TruncateToInt32(x);
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
    return found == nullptr ? CSize() : found->GetSize();
}

void CDrawSurface::SetSource(CColor color)
{
    cairo_set_source_rgb(context, ToUnit(color.r), ToUnit(color.g), ToUnit(color.b));
}

void CDrawSurface::Stroke(double ax, double ay, double bx, double by)
{
    if (context == nullptr)
    {
        return;
    }
    const CRect clip = GetOuterClip(context);
    CSegment segment = MakeSeen(ax, ay, bx, by);
    if (clip.IsEmpty() || !ClipToNeighbourhood(segment, clip))
    {
        return;
    }
    SetSource(state.pen);
    cairo_move_to(context, segment.ax, segment.ay);
    cairo_line_to(context, segment.bx, segment.by);
    cairo_stroke(context);
}

template <class Point>
void CDrawSurface::StrokeAll(const Point* points, int count)
{
    const auto at = [points](int i)
    { return std::pair(half + static_cast<double>(points[i].x), half + static_cast<double>(points[i].y)); };
    CPoint origin;
    const CPixelTarget target =
        context == nullptr || count < 2 ? CPixelTarget() : GetPlainTarget(context, origin);
    if (target.data != nullptr)
    {
        cairo_surface_flush(cairo_get_target(context));
    }
    for (int i = 1; i < count; ++i)
    {
        const auto [ax, ay] = at(i - 1);
        const auto [bx, by] = at(i);
        if (target.data == nullptr)
        {
            Stroke(ax, ay, bx, by);
            continue;
        }
        CSegment segment = MakeSeen(ax + origin.x, ay + origin.y, bx + origin.x, by + origin.y);
        if (ClipToNeighbourhood(segment, target.clip))
        {
            rasterizer.DrawSegment(target, state.pen, segment);
        }
    }
    if (target.data != nullptr)
    {
        cairo_surface_mark_dirty(cairo_get_target(context));
    }
}

void CDrawSurface::PaintPart(CBitmapContext* pixels, const CRect& src, const CRect& dst, int opacity)
{
    if (context == nullptr || pixels == nullptr || src.IsEmpty() || dst.IsEmpty() || opacity <= 0)
    {
        return;
    }
    const CRect part = Intersect(src, {CPoint(), pixels->GetSize()});
    const CRect seen = Intersect(dst, GetOuterClip(context));
    cairo_surface_t* source = seen.IsEmpty() ? nullptr : pixels->CreateSubImage(part);
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
    cairo_set_source_surface(context, source, 0.0, 0.0);
    // The edges of a scaled picture do not fade into nothing.
    cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
    cairo_paint_with_alpha(context, ToUnit(std::min(opacity, fullOpacity)));
    cairo_restore(context);
    cairo_surface_destroy(source);
}

} // namespace Mirel::Graphics
