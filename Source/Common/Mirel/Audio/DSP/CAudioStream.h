#pragma once

#include "Mirel/Audio/DSP/IAudioStream.h"

#include <utility>

namespace Mirel::Audio::DSP
{

/// A view of samples that lie somewhere in an array of floats, such as a host's buffer.
class CAudioStream : public IAudioStream
{
public:
    CAudioStream() = default;

    /// The view spans size_ floats from data_ + offset_, of which every stride_-th belongs to the channel.
    /// With owned_ the array (array-new) is freed with the stream.
    CAudioStream(float* data_, int offset_, int size_, int stride_, bool owned_ = false)
        : data(data_),
          offset(offset_),
          size(size_),
          stride(stride_),
          owned(owned_)
    {
    }

    CAudioStream(const CAudioStream&) = delete;
    CAudioStream& operator=(const CAudioStream&) = delete;

    CAudioStream(CAudioStream&& other) noexcept { Swap(other); }

    CAudioStream& operator=(CAudioStream&& other) noexcept
    {
        Swap(other);
        return *this;
    }

    ~CAudioStream() override
    {
        if (owned)
        {
            delete[] data;
        }
    }

    const float* GetData() const override { return data == nullptr ? nullptr : data + offset; }
    float* GetData() override { return data == nullptr ? nullptr : data + offset; }
    int GetSampleCount() const override { return stride == 0 ? size : size / stride; }
    int GetStride() const override { return stride; }

private:
    void Swap(CAudioStream& other) noexcept
    {
        std::swap(data, other.data);
        std::swap(offset, other.offset);
        std::swap(size, other.size);
        std::swap(stride, other.stride);
        std::swap(owned, other.owned);
    }

    float* data = nullptr;
    int offset = 0;
    int size = 0;
    int stride = 1;
    bool owned = false;
};

} // namespace Mirel::Audio::DSP
