#pragma once

#include "Host/Audio/IAudioSource.h"

namespace Host
{

/// A short piece made by rule, so that there is something to look at without a file: eight beats at 120 a
/// minute, stereo at 48000 hertz. A falling kick on every beat, a bass note under it, noise on the off-beats
/// on the right, and on the left a rising sweep.
class CDemoSource : public IAudioSource
{
public:
    double GetSampleRate() const override;
    int GetChannelCount() const override { return 2; }
    std::int64_t GetFrameCount() const override;
    void Skip(std::int64_t frames) override;
    bool Rewind() override;
    int Read(float* const* channels, int frames) override;

private:
    std::int64_t position = 0;
};

} // namespace Host
