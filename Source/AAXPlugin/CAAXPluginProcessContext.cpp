#include "AAXPlugin/CAAXPluginProcessContext.h"

#include "AAXPlugin/CMidiNodeOutput.h"
#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/PassThrough.h"
#include "AAXPlugin/ProcessFields.h"
#include "AAXPlugin/SilenceTest.h"
#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/CProcessInfo.h"

#include <algorithm>
#include <cstddef>

namespace MirelExt::AAXPlugin
{

using namespace Mirel::Audio::DSP;
using Mirel::Audio::Plugin::CAudioPluginInternalsBase;

namespace
{

constexpr int Bypass = 0;
constexpr int FirstFilterParam = 1;

/// The values of the filter's parameters, which follow the bypass.
class CFilterValues : public IConstParamsValues
{
public:
    explicit CFilterValues(const CInputAdapters& params_) : params(params_) {}

    int GetCount() const override { return std::max(params.GetCount() - FirstFilterParam, 0); }
    float GetValue(int index) const override { return params[index + FirstFilterParam].GetValue(); }

private:
    const CInputAdapters& params;
};

int SampleCountOf(AAX_InstanceRecord record)
{
    const auto* count = static_cast<const std::int32_t*>(record[FieldBufferLength]);
    return count != nullptr ? std::max(*count, 0) : 0;
}

IAAXMidiNode* NodeOf(AAX_InstanceRecord record, EProcessField field)
{
    return static_cast<IAAXMidiNode*>(record[field]);
}

/// Points streams at a host's channels; those that the host does not have at one float.
void Wire(std::vector<CAudioStream>& streams, void* channels, int hostCount, int sampleCount, float& none)
{
    auto* const* pointers = static_cast<float* const*>(channels);
    int channel = 0;
    for (CAudioStream& stream : streams)
    {
        const bool offered = pointers != nullptr && channel < hostCount;
        stream = offered ? CAudioStream(pointers[channel], 0, sampleCount, 1)
                         : CAudioStream(&none, 0, sampleCount, 0);
        ++channel;
    }
}

} // namespace

CAAXPluginProcessContext::CAAXPluginProcessContext(CAudioPluginInternalsBase& internals_,
                                                   const CInputAdapters& params_,
                                                   CAudioThreadMark& audioThread_)
    : internals(internals_),
      params(params_),
      audioThread(audioThread_)
{
}

bool CAAXPluginProcessContext::Init(double sampleRate)
{
    const bool ok = internals.InitFilter(sampleRate);
    const CProcessInfo& info = internals.GetFilter().GetProcessInfo();
    inputStreams = CStreams(static_cast<std::size_t>(info.GetInputs().GetCount()));
    outputStreams = CStreams(static_cast<std::size_t>(info.GetOutputs().GetCount()));
    ramps.Init(CFilterValues(params));
    return ok;
}

void CAAXPluginProcessContext::Process(AAX_InstanceRecord record)
{
    const CAudioThreadMark::CScope scope(audioThread);
    const int sampleCount = SampleCountOf(record);
    ReadMidi(NodeOf(record, FieldMidiInput));
    RunFilter(record, sampleCount);
    internals.AddProcessedSamples(sampleCount);
    processedSamples += sampleCount;
    if (outputStreams.empty())
    {
        PassThrough(record, host);
    }
    RefreshOutputs(NodeOf(record, FieldMidiOutput));
}

CAAXPluginProcessContext::CRefreshes CAAXPluginProcessContext::GetRefreshes() const
{
    return {refreshCount.load(std::memory_order_relaxed), lastRefresh.load(std::memory_order_relaxed),
            publicationCount.load(std::memory_order_relaxed)};
}

void CAAXPluginProcessContext::ReadMidi(IAAXMidiNode* node)
{
    const SMidiEvent* events = nullptr;
    std::int32_t count = 0;
    if (node == nullptr || node->GetEvents(&events, &count) != AAXResult::Ok || events == nullptr)
    {
        return;
    }
    for (std::int32_t i = 0; i < count; ++i)
    {
        internals.ProcessMIDI({events[i].data[0], events[i].data[1], events[i].data[2]});
    }
}

bool CAAXPluginProcessContext::IsInputSilent(int sampleCount) const
{
    const auto offered = static_cast<std::ptrdiff_t>(
        std::min(inputStreams.size(), static_cast<std::size_t>(std::max(host.inputs, 0))));
    return std::all_of(inputStreams.begin(), inputStreams.begin() + offered,
                       [sampleCount](const CAudioStream& stream) { return IsSilent(stream, sampleCount); });
}

void CAAXPluginProcessContext::RunFilter(AAX_InstanceRecord record, int sampleCount)
{
    const IConstParamsVariations& variations = ramps.Update(CFilterValues(params), sampleCount);
    internals.GetBypass().SetBypass(params[Bypass].GetValue() > 0.5F);
    Wire(inputStreams, record[FieldAudioInputs], host.inputs, sampleCount, inputOfNone);
    Wire(outputStreams, record[FieldAudioOutputs], host.outputs, sampleCount, outputOfNone);
    CAudioStreams inputs(inputStreams.data(), static_cast<int>(inputStreams.size()));
    CAudioStreams outputs(outputStreams.data(), static_cast<int>(outputStreams.size()));
    const CProcessBlock block = {&inputs, &outputs, sampleCount, &variations, nullptr};
    if (!inputStreams.empty() && IsInputSilent(sampleCount))
    {
        internals.GetBypass().ProcessSilence(internals.GetFilter(), block);
    }
    else
    {
        internals.GetBypass().Process(internals.GetFilter(), block);
    }
}

void CAAXPluginProcessContext::RefreshOutputs(IAAXMidiNode* node)
{
    IOutputDataSync& sync = internals.GetOutputDataSync();
    if (!sync.IsOutputDue())
    {
        return;
    }
    internals.GetFilter().UpdateOutputs();
    if (!areParamsPublished)
    {
        PublishParams(node);
        areParamsPublished = true;
        refreshCount.fetch_add(1, std::memory_order_relaxed);
        lastRefresh.store(processedSamples, std::memory_order_relaxed);
    }
    if (!internals.PublishOutputs())
    {
        // A reader is at the captures: output stays due, and the next block tries again.
        return;
    }
    areParamsPublished = false;
    sync.Reset();
    publicationCount.fetch_add(1, std::memory_order_relaxed);
}

void CAAXPluginProcessContext::PublishParams(IAAXMidiNode* node)
{
    if (node == nullptr)
    {
        internals.PublishOutputParams(nullptr);
        return;
    }
    CMidiNodeOutput midi(*node);
    internals.PublishOutputParams(&midi);
}

void ProcessInstances(const AAX_InstanceRecord* instances, std::int32_t count)
{
    for (std::int32_t i = 0; instances != nullptr && i < count; ++i)
    {
        const AAX_InstanceRecord record = instances[i];
        if (record == nullptr || record[FieldProcessContext] == nullptr)
        {
            continue;
        }
        auto* context = *static_cast<CAAXPluginProcessContext* const*>(record[FieldProcessContext]);
        if (context != nullptr)
        {
            context->Process(record);
        }
    }
}

} // namespace MirelExt::AAXPlugin
