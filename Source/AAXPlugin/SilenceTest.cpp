#include "AAXPlugin/SilenceTest.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace MirelExt::AAXPlugin
{

namespace
{

/// Without their sign, the bits of numbers grow as the numbers do, and those of infinity and NaN are above
/// all others. So compared, many samples go side by side.
std::int32_t LoudnessBits(float sample)
{
    constexpr std::uint32_t withoutSign = 0x7FFFFFFF;
    return static_cast<std::int32_t>(std::bit_cast<std::uint32_t>(sample) & withoutSign);
}

/// Below 0 if the sample is louder than 1e-10 in single precision, which itself is silent.
std::int32_t Margin(float sample)
{
    constexpr auto loudest = std::bit_cast<std::int32_t>(1e-10F);
    return loudest - LoudnessBits(sample);
}

bool IsLoud(float sample)
{
    return Margin(sample) < 0;
}

/// Looks at all samples.
bool HasLoud(const float* samples, std::size_t count)
{
    std::int32_t signs = 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        signs |= Margin(samples[i]);
    }
    return signs < 0;
}

bool IsSilentRow(const float* samples, std::size_t count)
{
    constexpr std::size_t atOnce = 64;
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
