#pragma once

#include "Mirel/Audio/DSP/CAudioStream.h"

namespace Mirel::Audio::DSP
{

/// An array of channels that the caller made, as a list.
class CAudioStreams : public IAudioStreams
{
public:
    /// A null array has no channels, whatever the count. With owned_ the array (array-new) is freed with the
    /// list.
    CAudioStreams(CAudioStream* streams_, int count_, bool owned_ = false)
        : streams(streams_),
          count(streams_ == nullptr ? 0 : count_),
          owned(owned_)
    {
    }

    CAudioStreams(const CAudioStreams&) = delete;
    CAudioStreams& operator=(const CAudioStreams&) = delete;

    ~CAudioStreams() override
    {
        if (owned)
        {
            delete[] streams;
        }
    }

    int GetCount() const override { return count; }
    const IAudioStream& operator[](int index) const override { return streams[index]; }
    IAudioStream& operator[](int index) override { return streams[index]; }

private:
    CAudioStream* streams;
    int count;
    bool owned;
};

/// One channel as a list, for handing it to a mono filter. No channel gives an empty list.
class CAudioStreamToStreams : public IAudioStreams
{
public:
    explicit CAudioStreamToStreams(IAudioStream* stream_) : stream(stream_) {}

    int GetCount() const override { return stream == nullptr ? 0 : 1; }
    const IAudioStream& operator[](int) const override { return *stream; }
    IAudioStream& operator[](int) override { return *stream; }

private:
    IAudioStream* stream;
};

/// Any number of channels of silence without memory behind them: what a filter gets when it wants inputs and
/// there are none.
class CEmptyStreams : public IAudioStreams
{
public:
    CEmptyStreams(int count_, int sampleCount) : stream(nullptr, 0, sampleCount, 1), count(count_) {}

    int GetCount() const override { return count; }
    const IAudioStream& operator[](int) const override { return stream; }
    IAudioStream& operator[](int) override { return stream; }

private:
    CAudioStream stream;
    int count;
};

} // namespace Mirel::Audio::DSP
