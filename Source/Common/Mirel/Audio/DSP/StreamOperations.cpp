#include "Mirel/Audio/DSP/StreamOperations.h"

#include <algorithm>
#include <cstddef>

namespace Mirel::Audio::DSP
{

namespace
{

void FillZeros(float* data, std::ptrdiff_t stride, int count)
{
    if (stride == 1)
    {
        std::fill_n(data, std::max(count, 0), 0.0f);
        return;
    }
    for (std::ptrdiff_t i = 0; i < count; ++i)
    {
        data[i * stride] = 0.0f;
    }
}

} // namespace

void CopyStream(IAudioStream& target, const IAudioStream& source, int count)
{
    float* to = target.GetData();
    const float* from = source.GetData();
    const std::ptrdiff_t toStride = target.GetStride();
    const std::ptrdiff_t fromStride = source.GetStride();
    if (to == nullptr || (to == from && toStride == fromStride))
    {
        return;
    }
    if (from == nullptr)
    {
        FillZeros(to, toStride, count);
    }
    else if (toStride == 1 && fromStride == 1)
    {
        std::copy_n(from, std::max(count, 0), to);
    }
    else
    {
        for (std::ptrdiff_t i = 0; i < count; ++i)
        {
            to[i * toStride] = from[i * fromStride];
        }
    }
}

void CopyStreams(IAudioStreams& target, const IAudioStreams& source, int count)
{
    const int streams = std::min(target.GetCount(), source.GetCount());
    for (int i = 0; i < streams; ++i)
    {
        CopyStream(target[i], source[i], count);
    }
}

void ClearStreams(IAudioStreams& target)
{
    for (int i = 0; i < target.GetCount(); ++i)
    {
        IAudioStream& stream = target[i];
        if (stream.GetData() != nullptr)
        {
            FillZeros(stream.GetData(), stream.GetStride(), stream.GetSampleCount());
        }
    }
}

} // namespace Mirel::Audio::DSP
