// PositionToValue undoes ValueToPosition, as precisely as single precision lets an axis be. How precise that
// is follows from the axis: the tests send an interval through the same chain in double precision, widened at
// each step by what the step's roundings can add, and the value must come back within it.

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

using Mirel::DataModel::Controls::CParamViewerConfig;
using Mirel::DataModel::Objects::CParamInfo;
using Mirel::DataModel::Objects::GetResponsePair;
using Mirel::DataModel::Objects::responseCurveCount;

namespace
{

constexpr auto epsilon = static_cast<double>(std::numeric_limits<float>::epsilon());

/// What the sums, products and the elementary function of one step can add at most to a number of up to 1:
/// the steepest of them, e to the 6.9 x, turns one rounding of its argument into seven.
constexpr double stepError = 32.0 * epsilon;

using Curve = double (*)(double);

double ExpNorm(double x, double factor)
{
    return std::expm1(x * std::log1p(factor)) / factor;
}

double LogNorm(double x, double factor)
{
    return std::log1p(factor * x) / std::log1p(factor);
}

double Same(double x)
{
    return x;
}

double Squared(double x)
{
    return x > 0.0 ? x * x : 0.0;
}

double Root(double x)
{
    return x > 0.0 ? std::sqrt(x) : 0.0;
}

template <int Factor>
double Exp(double x)
{
    return ExpNorm(x, Factor);
}

template <int Factor>
double Log(double x)
{
    return LogNorm(x, Factor);
}

struct CReferencePair
{
    Curve response;
    Curve inverse;
};

/// By code, as GetResponsePair gives them; the straight lines among them are three.
constexpr std::array<CReferencePair, responseCurveCount> references = {{{Log<1000>, Exp<1000>},
                                                                        {Log<100>, Exp<100>},
                                                                        {Log<10>, Exp<10>},
                                                                        {Same, Same},
                                                                        {Root, Squared},
                                                                        {Log<1>, Exp<1>},
                                                                        {Same, Same},
                                                                        {Exp<1>, Log<1>},
                                                                        {Squared, Root},
                                                                        {Same, Same},
                                                                        {Exp<10>, Log<10>},
                                                                        {Exp<100>, Log<100>},
                                                                        {Exp<1000>, Log<1000>}}};

struct CSpan
{
    double low;
    double high;
};

CSpan Widen(CSpan span, double error)
{
    return {span.low - error, span.high + error};
}

struct CAxis
{
    double min; ///< Both are numbers that single precision holds.
    double max;
    bool logScale;
    int curve; ///< A response curve's code.

    CParamInfo Info() const { return Tests::Real(static_cast<float>(min), static_cast<float>(max)); }

    const CReferencePair& Reference() const { return references[static_cast<std::size_t>(curve)]; }

    double Normalized(double value) const
    {
        return logScale ? std::log(value / min) / std::log(max / min) : (value - min) / (max - min);
    }

    double Value(double normalized) const
    {
        return logScale ? min * std::pow(max / min, normalized) : min + (max - min) * normalized;
    }

    /// The positions, before zoom, stops and reversal, that a value may be given.
    CSpan Positions(double value) const
    {
        const double n = Normalized(value);
        const double error = logScale ? 4.0 * epsilon * (1.0 + 1.0 / std::log(max / min)) : 4.0 * epsilon * n;
        return Widen({Reference().inverse(std::max(n - error, 0.0)), Reference().inverse(n + error)},
                     stepError);
    }

    /// The values that may be read at these positions.
    CSpan Values(CSpan positions) const
    {
        const CSpan f =
            Widen({Reference().response(positions.low), Reference().response(positions.high)}, stepError);
        const double size = std::max(std::abs(min), std::abs(max));
        return Widen({Value(f.low), Value(f.high)}, 4.0 * epsilon * size);
    }
};

/// From low to high, in a thousand steps.
rc::Gen<float> Between(float low, float high)
{
    return rc::gen::map(rc::gen::inRange(0, 1001),
                        [=](int i) { return low + (high - low) * static_cast<float>(i) * 0.001F; });
}

CAxis AnyAxis()
{
    CAxis axis{};
    axis.logScale = *rc::gen::arbitrary<bool>();
    const float min = axis.logScale ? *Between(0.5F, 20.0F) : *Between(-10.0F, 10.0F);
    const float max = axis.logScale ? min * *Between(1.5F, 1000.0F) : min + *Between(1.0F, 100.0F);
    axis.min = static_cast<double>(min);
    axis.max = static_cast<double>(max);
    axis.curve = *rc::gen::inRange(0, responseCurveCount);
    return axis;
}

void Configure(CParamViewerConfig& viewer, const CAxis& axis)
{
    viewer.SetLogScale(axis.logScale);
    const auto pair = GetResponsePair(axis.curve);
    viewer.SetResponseCurve(pair.function, pair.inverse, false);
    viewer.SetReverse(*rc::gen::arbitrary<bool>());
    viewer.SetOffset(*Between(0.0F, 1.0F));
}

} // namespace

RC_GTEST_PROP(AxisRoundTrip, AValueOnAContinuousAxisComesBack, ())
{
    const CAxis axis = AnyAxis();
    const CParamInfo info = axis.Info();
    CParamViewerConfig viewer(info);
    Configure(viewer, axis);
    viewer.SetZoom(*Between(1.0F, 50.0F));
    const double exact = axis.Value(static_cast<double>(*Between(0.0F, 1.0F)));
    const auto value = static_cast<float>(std::clamp(exact, axis.min, axis.max));

    const float back = viewer.PositionToValue(viewer.ValueToPosition(value, false));

    const CSpan expected = axis.Values(axis.Positions(static_cast<double>(value)));
    RC_LOG() << value << " came back as " << back << ", expected " << expected.low << " to " << expected.high;
    RC_ASSERT(static_cast<double>(back) >= expected.low);
    RC_ASSERT(static_cast<double>(back) <= expected.high);
}

RC_GTEST_PROP(AxisRoundTrip, AValueOnAStopComesBackFromThatStop, ())
{
    const CAxis axis = AnyAxis();
    const CParamInfo info = axis.Info();
    CParamViewerConfig viewer(info);
    Configure(viewer, axis);
    const int count = *rc::gen::inRange(2, 22);
    const int zoom = *rc::gen::inRange(1, 5);
    const bool zoomPositions = *rc::gen::arbitrary<bool>();
    viewer.SetPositionsCount(count);
    viewer.SetZoom(static_cast<float>(zoom));
    viewer.SetZoomPositions(zoomPositions);
    const int last = zoomPositions ? count - 1 : (count - 1) * zoom;
    const int stop = *rc::gen::inRange(0, last + 1);
    const double atStop = static_cast<double>(stop) / last;
    const auto value = static_cast<float>(axis.Value(axis.Reference().response(atStop)));

    const float back = viewer.PositionToValue(viewer.ValueToPosition(value, false));

    const CSpan expected = axis.Values(Widen({atStop, atStop}, epsilon));
    RC_LOG() << value << " came back as " << back << ", expected " << expected.low << " to " << expected.high;
    RC_ASSERT(static_cast<double>(back) >= expected.low);
    RC_ASSERT(static_cast<double>(back) <= expected.high);
}

RC_GTEST_PROP(AxisRoundTrip, EveryIntegerOfANaturalAxisComesBackExactly, ())
{
    const int min = *rc::gen::inRange(-2000, 2000);
    const int size = *rc::gen::inRange(0, 4000);
    const CParamInfo info = Tests::Integer(static_cast<float>(min), static_cast<float>(min + size));
    CParamViewerConfig viewer(info);
    viewer.SetReverse(*rc::gen::arbitrary<bool>());
    viewer.SetZoom(*Between(1.0F, 50.0F));
    viewer.SetOffset(*Between(0.0F, 1.0F));
    const auto value = static_cast<float>(min + *rc::gen::inRange(0, size + 1));

    RC_ASSERT(viewer.PositionToValue(viewer.ValueToPosition(value, false)) == value);
}

RC_GTEST_PROP(AxisRoundTrip, ClampedPositionsStayWithinTheWidget, ())
{
    const CAxis axis = AnyAxis();
    const CParamInfo info = axis.Info();
    CParamViewerConfig viewer(info);
    Configure(viewer, axis);
    viewer.SetZoom(*Between(1.0F, 50.0F));
    viewer.SetPositionsCount(*rc::gen::inRange(-1, 20));
    const float position = viewer.ValueToPosition(*rc::gen::arbitrary<float>(), true);

    RC_ASSERT(position >= 0.0F);
    RC_ASSERT(position <= 1.0F);
}
