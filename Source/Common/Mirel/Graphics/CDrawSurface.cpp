#include "Mirel/Graphics/CDrawSurface.h"

#include "Mirel/Graphics/CBitmapAdapter.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ContextArea.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Graphics/LineClip.h"
#include "Mirel/Graphics/PlainTarget.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <iterator>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

constexpr double half = 0.5;

/// The last pixel of an extent, as far as there are numbers for it.
int GetLast(int first, int length)
{
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{first} + length - 1, INT32_MAX));
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
    CPixelPlace place;
    const CPixelTarget target = GetPlainTarget(context, place);
    if (target.data == nullptr)
    {
        for (int i = 0; i < count; ++i)
        {
            Stroke(segmentAt(i));
        }
        return;
    }
    cairo_surface_flush(cairo_get_target(context));
    const double scale = place.scale;
    for (int i = 0; i < count; ++i)
    {
        const CSegment s = MakeSeen(segmentAt(i));
        CSegment seen = {s.ax * scale + place.origin.x, s.ay * scale + place.origin.y,
                         s.bx * scale + place.origin.x, s.by * scale + place.origin.y};
        if (ClipToNeighbourhood(seen, target.clip))
        {
            DrawSegment(target, state.pen, seen, place.scale);
        }
    }
    cairo_surface_mark_dirty(cairo_get_target(context));
}

} // namespace Mirel::Graphics
