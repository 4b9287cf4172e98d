#pragma once

#include "Host/Audio/IAudioSource.h"

#include <algorithm>

namespace Tests
{

/// Stereo at 48000 hertz whose frames are their own numbers, negated on the right; from 1 on, so that none is
/// silent.
class CCountingSource : public Host::IAudioSource
{
public:
    explicit CCountingSource(std::int64_t frames_) : frames(frames_) {}

    double GetSampleRate() const override { return 48000.0; }
    int GetChannelCount() const override { return 2; }
    std::int64_t GetFrameCount() const override { return frames; }
    void Skip(std::int64_t count) override { position += count; }
    bool Rewind() override
    {
        position = 0;
        return true;
    }
    int Read(float* const* channels, int wanted) override
    {
        const int count = static_cast<int>(std::min<std::int64_t>(wanted, frames - position));
        for (int i = 0; i < count; ++i)
        {
            ++position;
            channels[0][i] = static_cast<float>(position);
            channels[1][i] = -static_cast<float>(position);
        }
        return count;
    }

private:
    std::int64_t frames;
    std::int64_t position = 0;
};

} // namespace Tests
