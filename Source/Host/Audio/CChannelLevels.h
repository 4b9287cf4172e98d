#pragma once

#include <cstdint>

namespace Host
{

/// Peak and root mean square of all samples of one channel. One thread only.
class CChannelLevels
{
public:
    void Add(const float* samples, int count);

    /// The largest absolute value; 0 without samples. Samples that are no number are left out.
    double GetPeak() const { return peak; }

    /// 0 without samples.
    double GetRms() const;

private:
    double peak = 0.0;
    double squares = 0.0;
    std::int64_t count = 0;
};

} // namespace Host
