#include "Host/Run/COfflineRun.h"

#include "Host/Audio/CBuffers.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace Host
{

COfflineRun::COfflineRun(CHostInstance& instance_, const CRunOptions& options_)
    : instance(instance_),
      options(options_),
      schedule(instance, options)
{
}

void COfflineRun::StopAt(std::vector<std::int64_t> frames, std::function<void(std::size_t stop)> callback)
{
    stops = std::move(frames);
    onStop = std::move(callback);
    nextStop = 0;
}

CRunSummary COfflineRun::Play(IAudioSource& source, std::int64_t frames, CSoundFileWriter* writer,
                              CProgressBar& progress)
{
    const int channels = source.GetChannelCount();
    const int largest = *std::max_element(options.blockSizes.begin(), options.blockSizes.end());
    const CBuffers inputs(channels, largest);
    const CBuffers outputs(channels, largest);
    CRunSummary summary;
    CallStops(0);
    summary.sampleRate = source.GetSampleRate();
    summary.channels.resize(static_cast<std::size_t>(channels));
    std::chrono::steady_clock::duration spent{};
    for (std::size_t block = 0; summary.frames < frames; ++block)
    {
        const int size = options.blockSizes[block % options.blockSizes.size()];
        const std::int64_t most = std::min(frames - summary.frames, FramesToNextStop(summary.frames));
        const int wanted = static_cast<int>(std::min<std::int64_t>(size, most));
        const int count = source.Read(inputs.Get(), wanted);
        if (count == 0 && wanted > 0)
        {
            break;
        }
        const double seconds = static_cast<double>(summary.frames) / summary.sampleRate;
        schedule.ApplyChanges(seconds);
        schedule.ApplyMidi(seconds);
        const auto start = std::chrono::steady_clock::now();
        instance.Process(inputs.Get(), outputs.Get(), count);
        spent += std::chrono::steady_clock::now() - start;
        summary.frames += count;
        NoteRefresh(summary);
        for (std::size_t channel = 0; channel < summary.channels.size(); ++channel)
        {
            summary.channels[channel].Add(outputs.Get()[channel], count);
        }
        if (writer != nullptr)
        {
            writer->Write(outputs.Get(), count);
        }
        progress.Update(summary.frames);
        CallStops(summary.frames);
    }
    progress.Finish(summary.frames);
    summary.processSeconds = std::chrono::duration<double>(spent).count();
    return summary;
}

std::int64_t COfflineRun::FramesToNextStop(std::int64_t played) const
{
    return nextStop < stops.size() ? stops[nextStop] - played : std::numeric_limits<std::int64_t>::max();
}

void COfflineRun::CallStops(std::int64_t played)
{
    for (; nextStop < stops.size() && stops[nextStop] <= played; ++nextStop)
    {
        onStop(nextStop);
    }
}

void COfflineRun::NoteRefresh(CRunSummary& summary) const
{
    std::int64_t count = 0;
    std::int64_t position = 0;
    IPublishedCurves* curves = instance.GetCurves();
    if (curves == nullptr || curves->GetRefreshes(&count, &position) != AAXResult::Ok)
    {
        return;
    }
    if (count > summary.dueCount)
    {
        summary.duePositions.push_back(position);
    }
    summary.dueCount = count;
    curves->GetPublications(&summary.published);
}

} // namespace Host
