#include "Mirel/DataModel/GUIWidgets/CCurveGraphics.h"

#include "Mirel/DataModel/GUIWidgets/AxisZero.h"
#include "Mirel/DataModel/GUIWidgets/CurveSteps.h"
#include "Mirel/DataModel/GUIWidgets/PlotForms.h"
#include "Mirel/DataModel/GUIWidgets/TPointsPen.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using Graphics::CDrawSurface;
using Graphics::CPointF;
using Graphics::CSize;

template <class Point>
CPointF Exact(Point point)
{
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

bool AreSame(CPointF a, CPointF b)
{
    return !(a.x < b.x || a.x > b.x || a.y < b.y || a.y > b.y);
}

/// The second end that makes a line from a point what DrawPointF draws there.
CPointF PointEnd(CPointF point)
{
    return {point.x + 0.5F, point.y};
}

/// The lowest and highest sample of one pixel column, and where they stand. The first of equals counts.
class CColumn
{
public:
    void Start(int newPixel, float position, float value)
    {
        pixel = newPixel;
        lowest = highest = value;
        lowestPosition = highestPosition = position;
    }

    void Add(float position, float value)
    {
        if (value < lowest || std::isnan(lowest))
        {
            lowest = value;
            lowestPosition = position;
        }
        if (value > highest || std::isnan(highest))
        {
            highest = value;
            highestPosition = position;
        }
    }

    int pixel = 0;
    float lowest = 0.0F;
    float lowestPosition = 0.0F;
    float highest = 0.0F;
    float highestPosition = 0.0F;
};

} // namespace

/// One pass over the curve: positions in pixels along the main axis, and the value at each.
class CCurveGraphics::CSweep
{
public:
    CSweep(const CCurveGraphics& graphics, const CCurveSteps& steps_, const Graphics::CRect& clip)
        : viewer(graphics.viewer),
          clampValues(graphics.GetCurveAccessMode()),
          vertical(graphics.viewer.IsVertical()),
          size(graphics.GetSize()),
          length(vertical ? size.height : size.width),
          last(static_cast<float>(length - 1)),
          step(vertical ? steps_.yStep : steps_.xStep),
          steps(steps_),
          seenFrom(static_cast<float>(vertical ? clip.y : clip.x) - margin),
          seenTo(static_cast<float>(vertical ? clip.y + clip.height : clip.x + clip.width) + margin)
    {
    }

    float GetValue(float position) const { return viewer.GetValue(position / last, clampValues); }
    float GetEndValue() const { return viewer.GetValue(1.0F, clampValues); }

    /// Whether something between two positions can reach into what is being painted.
    bool IsSeen(float from, float to) const { return to >= seenFrom && from <= seenTo; }

    template <class Form>
    typename Form::Point ToPoint(float position, float value) const
    {
        return GUIWidgets::ToPoint<Form>(size, vertical, position, value);
    }

    const Controls::CCurveViewer& viewer;
    const bool clampValues;
    const bool vertical;
    const CSize size;
    const int length; ///< Pixels along the sweep.
    const float last; ///< The position of the last of them.
    const float step;
    const CCurveSteps& steps;

private:
    static constexpr float margin = 2.0F; ///< A line reaches less than a pixel beyond its ends.

    const float seenFrom;
    const float seenTo;
};

CCurveGraphics::CCurveGraphics(const Controls::CCurveViewer& viewer_)
    : CBaseCurveGraphics(GraphStyleCurve, viewer_.GetXViewer(), viewer_.GetYViewer()),
      viewer(viewer_),
      layoutConnection(&viewer_.GetLayoutChangedEventProvider(), &layoutChanged),
      curveConnection(&viewer_.GetCurveChangedEventProvider(), &curveChanged)
{
    points.Reserve(CCurveGraphics::CountPoints());
}

void CCurveGraphics::Draw(CDrawSurface& surface, const Graphics::CSimple2DRegion* region)
{
    CCurveSteps steps;
    if (!GetSteps(steps))
    {
        return;
    }
    TakeUpPen(surface);
    const CSweep sweep(*this, steps, GetBounds(region));
    if (GetAntiAlias())
    {
        DrawForm<CExactPixels>(surface, sweep);
    }
    else
    {
        DrawForm<CWholePixels>(surface, sweep);
    }
}

template <class Form>
void CCurveGraphics::DrawForm(CDrawSurface& surface, const CSweep& sweep)
{
    if (GetGraphStyle() == GraphStyleBargraph)
    {
        DrawBars<Form>(surface, sweep);
    }
    else if (DrawsMinMax(sweep.steps))
    {
        DrawMinMax<Form>(surface, sweep);
    }
    else
    {
        DrawCurve<Form>(surface, sweep);
    }
}

template <class Form>
void CCurveGraphics::DrawBars(CDrawSurface& surface, const CSweep& sweep)
{
    const float baseline = GetZeroPosition(viewer.GetYViewer());
    TPointsPen pen(std::span(points.exact), 0,
                   [&surface](const CPointF* ends, int count) { surface.DrawLinesF(ends, count); });
    float next = 0.0F;
    while (next < static_cast<float>(sweep.length))
    {
        const float position = Form::AlignBar(next);
        const float value = sweep.IsSeen(next, next) ? sweep.GetValue(position) : NAN;
        next += sweep.step;
        if (std::isfinite(value))
        {
            const CPointF base = Exact(sweep.ToPoint<Form>(position, baseline));
            const CPointF top = Exact(sweep.ToPoint<Form>(position, value));
            const bool isPoint = AreSame(base, top);
            pen.Add(isPoint ? PointEnd(top) : base);
            pen.Add(top);
        }
    }
    pen.Break();
}

template <class Form>
void CCurveGraphics::DrawCurve(CDrawSurface& surface, const CSweep& sweep)
{
    using Point = typename Form::Point;
    TPointsPen pen(std::span(points.Get(static_cast<Point*>(nullptr))), 1,
                   [&surface](const Point* corners, int count)
                   { Form::DrawPolyline(surface, corners, count); });
    float position = 0.0F;
    float value = 0.0F;
    float x = 0.0F;
    for (int i = 0; i < sweep.steps.count; ++i)
    {
        position = x;
        x += sweep.step;
        const float end = i + 1 < sweep.steps.count ? x : std::max(x, sweep.last);
        value = sweep.IsSeen(position - sweep.step, end) ? sweep.GetValue(position) : NAN;
        if (std::isfinite(value))
        {
            pen.Add(sweep.ToPoint<Form>(position, value));
        }
        else
        {
            pen.Break();
        }
    }
    pen.Break();
    const float end = position < sweep.last && std::isfinite(value) ? sweep.GetEndValue() : NAN;
    if (std::isfinite(end))
    {
        const Point closing[] = {sweep.ToPoint<Form>(position, value), sweep.ToPoint<Form>(sweep.last, end)};
        Form::DrawPolyline(surface, closing, 2);
    }
}

template <class Form>
void CCurveGraphics::DrawMinMax(CDrawSurface& surface, const CSweep& sweep)
{
    TPointsPen pen(std::span(points.exact), 0,
                   [&surface](const CPointF* ends, int count) { surface.DrawLinesF(ends, count); });
    const auto add = [&](float fromX, float from, float toX, float to)
    {
        if (std::isfinite(from) && std::isfinite(to))
        {
            pen.Add(Exact(sweep.ToPoint<Form>(static_cast<float>(ToPixel(fromX)), from)));
            pen.Add(Exact(sweep.ToPoint<Form>(static_cast<float>(ToPixel(toX)), to)));
        }
    };
    float previous = sweep.GetValue(0.0F);
    CColumn column;
    column.Start(0, 0.0F, previous);
    int count = 0;
    float x = 0.0F;
    while (x < static_cast<float>(sweep.length))
    {
        const int pixel = ToPixel(x);
        const float value = sweep.GetValue(x);
        if (pixel == column.pixel)
        {
            column.Add(x, value);
        }
        else
        {
            add(column.lowestPosition, column.lowest, column.highestPosition, column.highest);
            add(x - sweep.step, previous, x, value);
            count += 2;
            column.Start(pixel, x, value);
        }
        previous = value;
        x += sweep.step;
    }
    pen.Break();
    // Like every curve this one ends in a polyline. Its corners were drawn above, so those that are handed on
    // lie where nothing is seen.
    using Point = typename Form::Point;
    std::vector<Point>& corners = points.Get(static_cast<Point*>(nullptr));
    count = std::min(count, static_cast<int>(corners.size()));
    std::fill_n(corners.begin(), count, Point{-1000000, -1000000});
    Form::DrawPolyline(surface, corners.data(), count);
}

bool CCurveGraphics::HitTest(Graphics::CPoint point) const
{
    const bool vertical = viewer.IsVertical();
    const CSize area = GetSize();
    const auto length = static_cast<float>(vertical ? area.height : area.width);
    const auto across = static_cast<float>(vertical ? area.width : area.height);
    const auto along = static_cast<float>(vertical ? point.y : point.x);
    const float value = viewer.GetValue(along / (length - 1.0F), GetCurveAccessMode());
    if (area.IsEmpty() || !std::isfinite(value))
    {
        return false;
    }
    const auto toPixel = [&](float v) { return ToPixel((vertical ? v : 1.0F - v) * (across - 1.0F)); };
    const int tested = vertical ? point.x : point.y;
    const int pixel = toPixel(value);
    if (GetGraphStyle() == GraphStyleBargraph)
    {
        return toPixel(GetZeroPosition(viewer.GetYViewer())) <= tested ? tested < pixel + 1
                                                                       : tested > pixel - 1;
    }
    return pixel - 2 <= tested && tested < pixel + 2;
}

bool CCurveGraphics::GetSteps(CCurveSteps& steps) const
{
    return GetCurveSteps(GetSize(), viewer.IsVertical(), viewer.GetXViewer().GetVisiblePositions(),
                         sampleRate, steps);
}

bool CCurveGraphics::DrawsMinMax(const CCurveSteps& steps) const
{
    return minMaxMode && !viewer.IsVertical() && steps.count > 2 * std::int64_t{GetSize().width};
}

int CCurveGraphics::CountPoints() const
{
    CCurveSteps steps;
    return GetSteps(steps) ? 2 * steps.count : 0;
}

} // namespace Mirel::DataModel::GUIWidgets
