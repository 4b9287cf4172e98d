#include "AAXPlugin/SilenceTest.h"

#include <cmath>
#include <cstddef>

namespace MirelExt::AAXPlugin
{

bool IsSilent(const Mirel::Audio::DSP::IAudioStream& stream, int count)
{
    // The single-precision number nearest to 1e-10, so that this number itself counts as silent.
    constexpr double loudest = double{1e-10F};

    const float* samples = stream.GetData();
    if (samples == nullptr)
    {
        return true;
    }
    const std::ptrdiff_t stride = stream.GetStride();
    for (int i = 0; i < count; ++i, samples += stride)
    {
        if (!(std::abs(double{*samples}) <= loudest))
        {
            return false;
        }
    }
    return true;
}

} // namespace MirelExt::AAXPlugin
