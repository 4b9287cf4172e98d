// The curve graph against a second computation of each of its forms, written down plainly: the points that it
// hands to the surface, and the pixels that these touch.

#include "CRecordingSurface.h"
#include "Common/Mirel/Graphics/Canvas.h"
#include "CurveRig.h"
#include "Mirel/DataModel/GUIWidgets/CCurveGraphics.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using DataModel::Controls::CCurveViewer;
using Graphics::CPointF;
using Tests::CCanvas;
using Tests::CRecordingSurface;
using Tests::CUnitCurve;

namespace
{

using Points = std::vector<CPointF>;

/// A table of random steps: any value from -0.2 to 1.2 at any place.
std::vector<float> RandomTable(int size)
{
    std::vector<float> table(static_cast<std::size_t>(size));
    for (float& value : table)
    {
        value = static_cast<float>(*rc::gen::inRange(-200, 1201)) * 0.001F;
    }
    return table;
}

std::function<float(float)> Steps(std::vector<float> table)
{
    return [table = std::move(table)](float x)
    {
        const auto last = static_cast<float>(table.size() - 1);
        return table[static_cast<std::size_t>(std::min(std::max(x, 0.0F), 1.0F) * last + 0.5F)];
    };
}

int Rounded(float value)
{
    return static_cast<int>(static_cast<double>(value) + 0.5);
}

float AsFloat(int value)
{
    return static_cast<float>(value);
}

/// What the graph is expected to do with a sample at `sweep` pixels along it.
struct CForm
{
    int width;
    int height;
    bool vertical;
    bool antiAlias;

    int Length() const { return vertical ? height : width; }

    CPointF At(float sweep, float value) const
    {
        const float w = AsFloat(width - 1);
        const float h = AsFloat(height - 1);
        if (antiAlias)
        {
            return vertical ? CPointF{value * w, sweep} : CPointF{sweep, AsFloat(height) - value * h - 1.0F};
        }
        return vertical ? CPointF{AsFloat(Rounded(value * w)), AsFloat(Rounded(sweep))}
                        : CPointF{AsFloat(Rounded(sweep)), AsFloat(height - 1 - Rounded(value * h))};
    }
};

bool Equal(const Points& a, const Points& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](CPointF p, CPointF q)
                      { return !(p.x < q.x || p.x > q.x || p.y < q.y || p.y > q.y); });
}

/// Both ends of each line of the operations, in order.
Points Lines(const std::vector<CRecordingSurface::COperation>& operations)
{
    Points lines;
    for (const auto& operation : operations)
    {
        const bool pairs = operation.kind == CRecordingSurface::LinesF;
        for (std::size_t i = 1; i < operation.points.size(); i += pairs ? 2 : 1)
        {
            lines.push_back(operation.points[i - 1]);
            lines.push_back(operation.points[i]);
        }
    }
    return lines;
}

struct CCase
{
    CForm form;
    float rate;
    std::function<float(float)> function;
};

CCase RandomCase()
{
    const int size = *rc::gen::inRange(2, 200);
    return {{*rc::gen::inRange(2, 120), *rc::gen::inRange(2, 120), *rc::gen::arbitrary<bool>(),
             *rc::gen::arbitrary<bool>()},
            static_cast<float>(*rc::gen::inRange(2, 60)) * 0.1F,
            Steps(RandomTable(size))};
}

/// A graph of that case, and what it draws.
struct CDrawn
{
    explicit CDrawn(const CCase& drawn) : curve(drawn.function), viewer(curve), graphics(viewer)
    {
        viewer.SetVertical(drawn.form.vertical);
        graphics.SetSize({drawn.form.width, drawn.form.height});
        graphics.SetAntiAlias(drawn.form.antiAlias);
        graphics.SetSampleRate(drawn.rate);
    }

    std::vector<CRecordingSurface::COperation> Record()
    {
        CRecordingSurface surface;
        graphics.Draw(surface, nullptr);
        return surface.operations;
    }

    CUnitCurve curve;
    CCurveViewer viewer;
    CCurveGraphics graphics;
};

Points ExpectedCurve(const CCase& drawn)
{
    Points lines;
    const float last = AsFloat(drawn.form.Length() - 1);
    const float step = 1.0F / drawn.rate;
    const int count = static_cast<int>(AsFloat(drawn.form.Length()) * drawn.rate + 0.5F);
    if (count < 2)
    {
        return lines;
    }
    float x = 0.0F;
    CPointF before = drawn.form.At(0.0F, drawn.function(0.0F));
    for (int i = 1; i < count; ++i)
    {
        x += step;
        const CPointF point = drawn.form.At(x, drawn.function(x / last));
        lines.push_back(before);
        lines.push_back(point);
        before = point;
    }
    if (x < last)
    {
        lines.push_back(before);
        lines.push_back(drawn.form.At(last, drawn.function(1.0F)));
    }
    return lines;
}

Points ExpectedBars(const CCase& drawn)
{
    Points lines;
    const float last = AsFloat(drawn.form.Length() - 1);
    if (static_cast<int>(AsFloat(drawn.form.Length()) * drawn.rate + 0.5F) < 2)
    {
        return lines;
    }
    float x = 0.0F;
    while (AsFloat(drawn.form.Length()) > x)
    {
        const float at = drawn.form.antiAlias ? x : AsFloat(Rounded(x));
        const CPointF base = drawn.form.At(at, 0.0F);
        const CPointF top = drawn.form.At(at, drawn.function(at / last));
        const bool meet = Equal({base}, {top});
        lines.push_back(meet ? CPointF{top.x + 0.5F, top.y} : base);
        lines.push_back(top);
        x += 1.0F / drawn.rate;
    }
    return lines;
}

/// Columns with the lowest and highest value each, and the links between them.
Points ExpectedMinMax(const CCase& drawn)
{
    const CForm& form = drawn.form;
    const auto at = [&form](float x, float value) { return form.At(AsFloat(Rounded(x)), value); };
    Points lines;
    const float step = 1.0F / drawn.rate;
    std::vector<std::pair<float, float>> column; // positions and values
    float previous = 0.0F;
    float x = 0.0F;
    while (AsFloat(form.width) > x)
    {
        const float value = drawn.function(x / AsFloat(form.width - 1));
        if (!column.empty() && Rounded(x) != Rounded(column.front().first))
        {
            const auto byValue = [](const auto& a, const auto& b) { return a.second < b.second; };
            const auto low = std::min_element(column.begin(), column.end(), byValue);
            const auto high = std::max_element(column.begin(), column.end(), byValue);
            lines.push_back(at(low->first, low->second));
            lines.push_back(at(high->first, high->second));
            lines.push_back(at(x - step, previous));
            lines.push_back(at(x, value));
            column.clear();
        }
        column.emplace_back(x, value);
        previous = value;
        x += step;
    }
    return lines;
}

/// The least distance of a pixel's centre from a line, both in units of pixels.
double DistanceToLine(double px, double py, CPointF a, CPointF b)
{
    const double dx = static_cast<double>(b.x) - static_cast<double>(a.x);
    const double dy = static_cast<double>(b.y) - static_cast<double>(a.y);
    const double ex = px - static_cast<double>(a.x);
    const double ey = py - static_cast<double>(a.y);
    const double square = dx * dx + dy * dy;
    const double along = square > 0.0 ? std::min(std::max((ex * dx + ey * dy) / square, 0.0), 1.0) : 0.0;
    return std::hypot(ex - along * dx, ey - along * dy);
}

} // namespace

RC_GTEST_PROP(CurvePaths, CurveIsTheSamplesInOrderAndItsClosing, ())
{
    const CCase drawn = RandomCase();
    CDrawn graph(drawn);
    RC_ASSERT(Equal(Lines(graph.Record()), ExpectedCurve(drawn)));
}

RC_GTEST_PROP(CurvePaths, BarsRunFromTheBaselineToTheSamples, ())
{
    const CCase drawn = RandomCase();
    CDrawn graph(drawn);
    graph.graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    RC_ASSERT(Equal(Lines(graph.Record()), ExpectedBars(drawn)));
}

RC_GTEST_PROP(CurvePaths, MinMaxDrawsTheExtremesOfEachColumnAndLinksThem, ())
{
    CCase drawn = RandomCase();
    drawn.form.vertical = false;
    drawn.rate = static_cast<float>(*rc::gen::inRange(22, 90)) * 0.1F;
    RC_PRE(AsFloat(drawn.form.width) * drawn.rate > AsFloat(2 * drawn.form.width) + 0.6F);
    CDrawn graph(drawn);
    graph.graphics.SetMinMaxMode(true);
    auto operations = graph.Record();
    RC_ASSERT(!operations.empty());
    const CRecordingSurface::COperation polyline = operations.back();
    operations.pop_back();
    const Points expected = ExpectedMinMax(drawn);
    RC_ASSERT(Equal(Lines(operations), expected));
    // Two points for each finished column, where nothing is seen of them.
    RC_ASSERT(polyline.kind ==
              (drawn.form.antiAlias ? CRecordingSurface::PolylineF : CRecordingSurface::Polyline));
    RC_ASSERT(polyline.points.size() == expected.size() / 2);
    for (const CPointF point : polyline.points)
    {
        RC_ASSERT(point.x < -1000.0F);
    }
}

RC_GTEST_PROP(CurvePaths, MinMaxNeedsMoreThanTwoSamplesAPixelAndAHorizontalCurve, ())
{
    CCase drawn = RandomCase();
    drawn.rate = drawn.form.vertical ? drawn.rate : 2.0F;
    CDrawn graph(drawn);
    graph.graphics.SetMinMaxMode(true);
    RC_ASSERT(Equal(Lines(graph.Record()), ExpectedCurve(drawn)));
}

RC_GTEST_PROP(CurvePaths, PaintTouchesThePixelsOfItsLinesAndNoOthers, ())
{
    CCase drawn = RandomCase();
    const int mode = *rc::gen::inRange(0, 3);
    CDrawn graph(drawn);
    if (mode == 1)
    {
        graph.graphics.SetGraphStyle(CCurveGraphics::GraphStyleBargraph);
    }
    graph.graphics.SetMinMaxMode(mode == 2);
    const bool minMax =
        mode == 2 && !drawn.form.vertical &&
        static_cast<int>(AsFloat(drawn.form.width) * drawn.rate + 0.5F) > 2 * drawn.form.width;
    const Points lines = mode == 1 ? ExpectedBars(drawn)
                         : minMax  ? ExpectedMinMax(drawn)
                                   : ExpectedCurve(drawn);
    CCanvas canvas(drawn.form.width, drawn.form.height);
    graph.graphics.Draw(*canvas, nullptr);
    // A line one pixel wide covers a good part of each pixel whose centre is nearer than a quarter of a
    // pixel, between its ends, and nothing of one that is farther than half a pixel and half a diagonal.
    for (int y = 0; y < drawn.form.height; ++y)
    {
        for (int x = 0; x < drawn.form.width; ++x)
        {
            double nearest = 1e9;
            for (std::size_t i = 0; i + 1 < lines.size(); i += 2)
            {
                nearest = std::min(nearest, DistanceToLine(x, y, lines[i], lines[i + 1]));
            }
            const bool painted = canvas.AlphaAt(x, y) > 0;
            RC_ASSERT(nearest > 0.25 || painted);
            RC_ASSERT(nearest < 1.3 || !painted);
        }
    }
}

TEST(CurvePaths, MinMaxKeepsTheFirstOfEqualExtremes)
{
    // Four samples to a pixel; in the column of pixel 1 the lowest value comes twice.
    CUnitCurve curve(
        [](float x)
        {
            const int i = static_cast<int>(x * 36.0F + 0.5F); // ten pixels, nine between first and last
            return i == 3 || i == 5 ? 0.25F : i == 4 ? 0.75F : 0.5F;
        });
    const CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({10, 5});
    graphics.SetSampleRate(4.0F);
    graphics.SetMinMaxMode(true);
    graphics.SetAntiAlias(false);
    CRecordingSurface surface;
    graphics.Draw(surface, nullptr);
    // The second pair of ends belongs to the second column: samples 2 to 5.
    const Points& ends = surface.operations.at(0).points;
    EXPECT_EQ(ends.at(4).x, 1.0F);
    EXPECT_EQ(ends.at(4).y, 3.0F);
    EXPECT_EQ(ends.at(5).x, 1.0F);
    EXPECT_EQ(ends.at(5).y, 1.0F);
}

TEST(CurvePaths, MinMaxPassesOverSamplesThatAreNoNumbers)
{
    CUnitCurve curve([](float x) { return static_cast<int>(x * 36.0F + 0.5F) % 2 == 0 ? std::nanf("") : x; });
    const CCurveViewer viewer(curve);
    CCurveGraphics graphics(viewer);
    graphics.SetSize({10, 50});
    graphics.SetSampleRate(4.0F);
    graphics.SetMinMaxMode(true);
    CCanvas canvas(10, 50);
    graphics.Draw(*canvas, nullptr);
    for (int x = 1; x < 9; ++x)
    {
        int painted = 0;
        for (int y = 0; y < 50; ++y)
        {
            painted += canvas.AlphaAt(x, y) > 0 ? 1 : 0;
        }
        EXPECT_GT(painted, 0) << x;
    }
}
