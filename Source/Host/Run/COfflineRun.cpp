#include "Host/Run/COfflineRun.h"

#include <algorithm>
#include <chrono>

namespace Host
{

namespace
{

/// One buffer per channel, and the pointers to them.
class CBuffers
{
public:
    CBuffers(int channels, int frames)
        : samples(static_cast<std::size_t>(channels), std::vector<float>(static_cast<std::size_t>(frames)))
    {
        for (std::vector<float>& channel : samples)
        {
            pointers.push_back(channel.data());
        }
    }

    float* const* Get() const { return pointers.data(); }

private:
    std::vector<std::vector<float>> samples;
    std::vector<float*> pointers;
};

template <class TEvent>
void SortByTime(std::vector<TEvent>& events)
{
    std::stable_sort(events.begin(), events.end(),
                     [](const TEvent& left, const TEvent& right) { return left.seconds < right.seconds; });
}

} // namespace

COfflineRun::COfflineRun(CHostInstance& instance_, const CRunOptions& options_)
    : instance(instance_),
      options(options_),
      parameters(instance.GetParameters()),
      midi(options.midi)
{
    SortByTime(midi);
}

bool COfflineRun::Prepare(std::string& error)
{
    changes.clear();
    nextChange = 0;
    for (const CParamChange& change : options.changes)
    {
        const CParameterSet::CParameter* parameter = parameters.Find(change.name, error);
        double normalized = 0.0;
        if (parameter == nullptr || !parameters.ParseValue(*parameter, change.value, normalized, error))
        {
            return false;
        }
        changes.push_back({change.seconds, parameter->id, normalized});
    }
    const char* bypass = nullptr;
    if (options.bypass && instance.GetParameters().GetMasterBypassId(&bypass) == AAXResult::Ok)
    {
        changes.push_back({0.0, bypass, 1.0});
    }
    SortByTime(changes);
    ApplyEvents(0.0);
    return true;
}

CRunSummary COfflineRun::Play(IAudioSource& source, std::int64_t frames, CSoundFileWriter* writer,
                              CProgressBar& progress)
{
    const int channels = source.GetChannelCount();
    const int largest = *std::max_element(options.blockSizes.begin(), options.blockSizes.end());
    const CBuffers inputs(channels, largest);
    const CBuffers outputs(channels, largest);
    CRunSummary summary;
    summary.sampleRate = source.GetSampleRate();
    summary.channels.resize(static_cast<std::size_t>(channels));
    std::chrono::steady_clock::duration spent{};
    for (std::size_t block = 0; summary.frames < frames; ++block)
    {
        const int size = options.blockSizes[block % options.blockSizes.size()];
        const int wanted = static_cast<int>(std::min<std::int64_t>(size, frames - summary.frames));
        const int count = source.Read(inputs.Get(), wanted);
        if (count == 0 && wanted > 0)
        {
            break;
        }
        ApplyEvents(static_cast<double>(summary.frames) / summary.sampleRate);
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
    }
    progress.Finish(summary.frames);
    summary.processSeconds = std::chrono::duration<double>(spent).count();
    return summary;
}

void COfflineRun::ApplyEvents(double seconds)
{
    for (; nextChange < changes.size() && changes[nextChange].seconds <= seconds; ++nextChange)
    {
        const CChange& change = changes[nextChange];
        instance.GetParameters().SetParameterValue(change.id.c_str(), change.normalized);
    }
    for (; nextMidi < midi.size() && midi[nextMidi].seconds <= seconds; ++nextMidi)
    {
        const CMidiMessage& message = midi[nextMidi];
        if (CHostMidiNode* node = instance.GetMidiInput())
        {
            node->Add(MakeMidiEvent(0, message.status, message.data1, message.data2));
        }
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
