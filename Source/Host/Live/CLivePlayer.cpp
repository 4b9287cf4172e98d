#include "Host/Live/CLivePlayer.h"

#include <algorithm>

namespace Host
{

namespace
{

void Silence(const CBuffers& buffers, int channels, int from, int to)
{
    for (int channel = 0; channel < channels; ++channel)
    {
        std::fill(buffers.Get()[channel] + from, buffers.Get()[channel] + to, 0.0F);
    }
}

} // namespace

CLivePlayer::CLivePlayer(CHostInstance& instance_, CReadAhead& input_, CEventSchedule& schedule_,
                         int channels, double sampleRate_, int mostFrames_)
    : instance(instance_),
      input(input_),
      schedule(schedule_),
      channelCount(channels),
      sampleRate(sampleRate_),
      mostFrames(mostFrames_),
      inputs(channels, mostFrames_),
      outputs(channels, mostFrames_)
{
}

void CLivePlayer::Process(int frames)
{
    if (IsPaused() || input.IsFinished())
    {
        finished.store(input.IsFinished(), std::memory_order_relaxed);
        Silence(outputs, channelCount, 0, frames);
        return;
    }
    schedule.ApplyMidi(GetSeconds());
    const int filled = input.Take(inputs.Get(), frames);
    Silence(inputs, channelCount, filled, frames);
    played.fetch_add(filled, std::memory_order_relaxed);
    instance.Process(inputs.Get(), outputs.Get(), frames);
}

double CLivePlayer::GetSeconds() const
{
    return static_cast<double>(played.load(std::memory_order_relaxed)) / sampleRate;
}

} // namespace Host
