#include "Mirel/DataModel/GUIWidgets/RulerStops.h"

#include "Mirel/DataModel/GUIWidgets/Limits.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using Controls::CParamViewerConfig;

/// Of a view: what the arithmetic may be off by.
constexpr double tolerance = 1e-4;

float WithPlainZero(float value, const CParamViewerConfig& axis)
{
    constexpr float least = 1e-6F;
    const float reach = std::max(std::fabs(axis.GetInfo().GetMin()), std::fabs(axis.GetInfo().GetMax()));
    return std::fabs(value) < reach * least ? 0.0F : value;
}

/// Stop k of n stands at k / (n - 1) of the whole axis, of which the view is a window.
std::vector<CRulerStop> GetSteppedStops(const CParamViewerConfig& axis)
{
    const auto zoom = static_cast<double>(axis.GetZoom());
    const double before = (zoom - 1.0) * static_cast<double>(axis.GetOffset());
    const double intervals = std::max(axis.GetPositionsCount() - 1, 1);
    const double spread = intervals / zoom;
    const double first = std::max(std::ceil(before * spread - tolerance), 0.0);
    const double last = axis.GetPositionsCount() > 1
                            ? std::min(std::floor((before + 1.0) * spread + tolerance), intervals)
                            : 0.0;
    std::vector<CRulerStop> stops;
    if (!(last >= first))
    {
        return stops;
    }
    const auto firstStop = static_cast<std::int64_t>(first);
    const auto lastStop = static_cast<std::int64_t>(last);
    const std::int64_t stride = (lastStop - firstStop) / CLimits::maxRulerStops + 1;
    for (std::int64_t k = (firstStop + stride - 1) / stride * stride; k <= lastStop; k += stride)
    {
        const auto position =
            static_cast<float>(std::clamp(static_cast<double>(k) / spread - before, 0.0, 1.0));
        stops.push_back({position, WithPlainZero(axis.PositionToValue(position), axis)});
    }
    return stops;
}

/// The least of 1, 2 and 5 times a power of ten that is not below the value.
double RoundUpToNice(double value)
{
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    for (const double nice : {1.0, 2.0, 5.0})
    {
        if (value <= nice * decade * (1.0 + tolerance))
        {
            return nice * decade;
        }
    }
    return 10.0 * decade;
}

void AddValue(std::vector<CRulerStop>& stops, const CParamViewerConfig& axis, double value)
{
    const auto single = WithPlainZero(static_cast<float>(value), axis);
    const auto position = static_cast<double>(axis.ValueToPosition(single, false));
    if (position >= -tolerance && position <= 1.0 + tolerance)
    {
        stops.push_back({static_cast<float>(std::clamp(position, 0.0, 1.0)), single});
    }
}

void AddMultiples(std::vector<CRulerStop>& stops, const CParamViewerConfig& axis, double low, double high,
                  double labels)
{
    const double step = RoundUpToNice((high - low) / labels);
    const double first = std::ceil(low / step - tolerance);
    const auto intervals = static_cast<int>(std::floor(high / step + tolerance) - first);
    for (int i = 0; i <= intervals; ++i)
    {
        AddValue(stops, axis, (first + i) * step);
    }
}

/// 1, 2 and 5 in each decade, or the decades alone where there is no room. The ends have the same sign.
void AddDecades(std::vector<CRulerStop>& stops, const CParamViewerConfig& axis, double low, double high,
                double labels)
{
    const double sign = low < 0.0 ? -1.0 : 1.0;
    const double least = std::min(std::fabs(low), std::fabs(high));
    const double most = std::max(std::fabs(low), std::fabs(high));
    const bool hasRoom = 3.0 * std::log10(most / least) <= labels;
    const auto firstDecade = static_cast<int>(std::floor(std::log10(least)));
    const auto lastDecade = static_cast<int>(std::floor(std::log10(most * (1.0 + tolerance))));
    for (int decade = firstDecade; decade <= lastDecade; ++decade)
    {
        for (const double factor : {1.0, 2.0, 5.0})
        {
            const double value = factor * std::pow(10.0, decade);
            if ((factor < 2.0 || hasRoom) && value >= least * (1.0 - tolerance) &&
                value <= most * (1.0 + tolerance))
            {
                AddValue(stops, axis, sign * value);
            }
        }
    }
}

std::vector<CRulerStop> GetRoundStops(const CParamViewerConfig& axis, double labels)
{
    const auto begin = static_cast<double>(axis.PositionToValue(0.0F));
    const auto end = static_cast<double>(axis.PositionToValue(1.0F));
    const double low = std::min(begin, end);
    const double high = std::max(begin, end);
    std::vector<CRulerStop> stops;
    if (!std::isfinite(high - low) || !(high - low > std::fabs(high) * 1e-6))
    {
        stops.push_back({0.0F, static_cast<float>(begin)});
        return stops;
    }
    constexpr double fewestDecades = 1.0;
    if (axis.IsLogScale() && low * high > 0.0 && std::fabs(std::log10(high / low)) >= fewestDecades)
    {
        AddDecades(stops, axis, low, high, labels);
    }
    else
    {
        AddMultiples(stops, axis, low, high, labels);
    }
    std::sort(stops.begin(), stops.end(),
              [](const CRulerStop& a, const CRulerStop& b) { return a.position < b.position; });
    return stops;
}

} // namespace

std::vector<CRulerStop> GetRulerStops(const CParamViewerConfig& axis, float length, float labelDistance)
{
    if (axis.GetPositionsCount() != CParamViewerConfig::continuous)
    {
        return GetSteppedStops(axis);
    }
    const auto room = static_cast<double>(length / labelDistance);
    return GetRoundStops(axis, std::clamp(room, 1.0, static_cast<double>(CLimits::maxRulerStops)));
}

} // namespace Mirel::DataModel::GUIWidgets
