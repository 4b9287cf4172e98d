#pragma once

#include "Host/Audio/CBuffers.h"
#include "Host/CHostInstance.h"
#include "Host/Live/CReadAhead.h"
#include "Host/Run/CEventSchedule.h"

#include <atomic>
#include <cstdint>

namespace Host
{

/// Plays a source through an instance block by block, as whoever drives it asks. Process belongs to the audio
/// thread; all else to any other thread.
class CLivePlayer
{
public:
    /// Blocks have `mostFrames` at most. All must outlive the player.
    CLivePlayer(CHostInstance& instance_, CReadAhead& input_, CEventSchedule& schedule_, int channels,
                double sampleRate_, int mostFrames_);

    /// Runs the instance on the next frames, with silence where the source has fallen behind; what came out
    /// stands in GetOutputs. While paused and after the end the instance rests, so that it goes on showing
    /// what it showed, and the outputs are silent.
    void Process(int frames);
    float* const* GetOutputs() const { return outputs.Get(); }

    int GetMostFrames() const { return mostFrames; }
    int GetChannelCount() const { return channelCount; }
    double GetSampleRate() const { return sampleRate; }

    void SetPaused(bool paused_) { paused.store(paused_, std::memory_order_relaxed); }
    bool IsPaused() const { return paused.load(std::memory_order_relaxed); }

    /// Of the source that was played.
    double GetSeconds() const;
    bool IsFinished() const { return finished.load(std::memory_order_relaxed); }

private:
    CHostInstance& instance;
    CReadAhead& input;
    CEventSchedule& schedule;
    int channelCount;
    double sampleRate;
    int mostFrames;
    CBuffers inputs;
    CBuffers outputs;
    std::atomic<std::int64_t> played = 0;
    std::atomic<bool> paused = false;
    std::atomic<bool> finished = false;
};

} // namespace Host
