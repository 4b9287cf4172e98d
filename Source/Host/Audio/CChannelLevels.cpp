#include "Host/Audio/CChannelLevels.h"

#include <algorithm>
#include <cmath>

namespace Host
{

void CChannelLevels::Add(const float* samples, int count_)
{
    for (int i = 0; i < count_; ++i)
    {
        const auto sample = static_cast<double>(samples[i]);
        if (std::isnan(sample))
        {
            continue;
        }
        peak = std::max(peak, std::abs(sample));
        squares += sample * sample;
        ++count;
    }
}

double CChannelLevels::GetRms() const
{
    return count == 0 ? 0.0 : std::sqrt(squares / static_cast<double>(count));
}

} // namespace Host
