#include "Mirel/DataModel/GUIWidgets/CurveSteps.h"

#include "Mirel/DataModel/GUIWidgets/Limits.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

bool GetCurveSteps(Graphics::CSize size, bool vertical, float visiblePositions, float sampleRate,
                   CCurveSteps& steps)
{
    constexpr auto maxSamples = static_cast<float>(CLimits::maxSamples);
    if (size.IsEmpty())
    {
        return false;
    }
    const int stops = Core::TruncateToInt32(static_cast<double>(std::min(visiblePositions, maxSamples)));
    if (stops == -1)
    {
        const auto length = static_cast<float>(vertical ? size.height : size.width);
        const float rate = std::min(sampleRate, maxSamples / length);
        steps.xStep = rate < 0.0F || rate > 0.0F ? 1.0F / rate : 0.0F;
        steps.yStep = steps.xStep;
        steps.count = Graphics::RoundToPixel(static_cast<double>(length * rate));
    }
    else
    {
        const auto intervals = static_cast<float>(std::max(stops, 1) - 1);
        steps.count = stops;
        steps.xStep = static_cast<float>(size.width - 1) / intervals;
        steps.yStep = static_cast<float>(size.height - 1) / intervals;
    }
    return steps.xStep > 0.0F && steps.count >= 2 && steps.yStep > 0.0F;
}

} // namespace Mirel::DataModel::GUIWidgets
