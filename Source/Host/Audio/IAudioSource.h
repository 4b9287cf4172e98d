#pragma once

#include <cstdint>

namespace Host
{

/// Audio to play: one or two channels at one rate. One thread only.
class IAudioSource
{
public:
    /// Hertz.
    virtual double GetSampleRate() const = 0;

    /// 1 or 2.
    virtual int GetChannelCount() const = 0;

    /// Frames from the start to the end, as far as is known beforehand.
    virtual std::int64_t GetFrameCount() const = 0;

    /// Passes over so many frames; fewer at the end.
    virtual void Skip(std::int64_t frames) = 0;

    /// Starts over. False if it cannot.
    virtual bool Rewind() = 0;

    /// Fills one buffer per channel with the next frames and returns their count: fewer than asked at the end
    /// only.
    virtual int Read(float* const* channels, int frames) = 0;

    virtual ~IAudioSource() = default;
};

} // namespace Host
