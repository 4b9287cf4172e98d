#pragma once

#include "Host/Audio/IAudioSource.h"

#include <atomic>
#include <cstdint>
#include <thread>
#include <vector>

namespace Host
{

/// Reads a source ahead on a thread of its own, about two seconds, so that an audio thread gets frames
/// without waiting for a disk. The source must outlive it and is its own until then.
class CReadAhead
{
public:
    /// Plays at most `frames`, and with `loops` from the start again and again (the whole source then).
    CReadAhead(IAudioSource& source_, std::int64_t frames, bool loops_);
    CReadAhead(const CReadAhead&) = delete;
    CReadAhead& operator=(const CReadAhead&) = delete;
    ~CReadAhead();

    /// Fills the channels with the next frames and returns their count: fewer than asked if the reader has
    /// fallen behind, and at the end. One thread at a time; neither waits nor allocates.
    int Take(float* const* channels, int frames);

    /// Whether the last frame was taken. The thread that takes.
    bool IsFinished() const;

private:
    void Read();
    bool ReadOnce(float* const* channels);

    IAudioSource& source;
    bool loops;
    std::int64_t left; ///< Frames still to be read. The reader's thread.
    std::uint64_t capacity;
    std::vector<std::vector<float>> ring;
    std::atomic<std::uint64_t> written = 0;
    std::atomic<std::uint64_t> taken = 0;
    std::atomic<bool> ended = false;
    std::atomic<bool> stops = false;
    std::thread thread;
};

} // namespace Host
