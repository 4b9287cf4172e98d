#include "AAXPlugin/SilenceTest.h"

#include <cmath>
#include <cstddef>

namespace MirelExt::AAXPlugin
{

namespace
{

/// In single precision, so that this number itself counts as silent.
constexpr float Loudest = 1e-10F;

bool IsLoud(float sample)
{
    return !(std::abs(sample) <= Loudest); // so written, NaN is loud
}

/// Looks at all of a few samples at once, which the processor does side by side.
bool HasLoud(const float* samples, std::size_t count)
{
    bool loud = false;
    for (std::size_t i = 0; i < count; ++i)
    {
        loud |= IsLoud(samples[i]);
    }
    return loud;
}

bool IsSilentRow(const float* samples, std::size_t count)
{
    constexpr std::size_t atOnce = 32;
    // Ordinary audio ends the search here.
    if (count > 0 && IsLoud(samples[0]))
    {
        return false;
    }
    for (; count >= atOnce; samples += atOnce, count -= atOnce)
    {
        if (HasLoud(samples, atOnce))
        {
            return false;
        }
    }
    return !HasLoud(samples, count);
}

} // namespace

bool IsSilent(const Mirel::Audio::DSP::IAudioStream& stream, int count)
{
    const float* samples = stream.GetData();
    if (samples == nullptr || count <= 0)
    {
        return true;
    }
    const std::ptrdiff_t stride = stream.GetStride();
    if (stride == 1)
    {
        return IsSilentRow(samples, static_cast<std::size_t>(count));
    }
    for (int i = 0; i < count; ++i, samples += stride)
    {
        if (IsLoud(*samples))
        {
            return false;
        }
    }
    return true;
}

} // namespace MirelExt::AAXPlugin
