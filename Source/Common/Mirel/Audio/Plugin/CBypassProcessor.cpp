#include "Mirel/Audio/Plugin/CBypassProcessor.h"

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/StreamOperations.h"

#include <algorithm>
#include <cstddef>

namespace Mirel::Audio::Plugin
{

using DSP::CAudioStream;
using DSP::CAudioStreams;
using DSP::CEmptyStreams;
using DSP::CProcessBlock;
using DSP::IAudioStream;
using DSP::IAudioStreams;

namespace
{

int OutputCountOf(const DSP::IFilter& filter)
{
    return filter.GetProcessInfo().GetOutputs().GetCount();
}

/// Silence where there is no such stream.
const IAudioStream& StreamOrSilence(const IAudioStreams* streams, int index, const IAudioStream& silence)
{
    return streams != nullptr && index < streams->GetCount() ? (*streams)[index] : silence;
}

void PutOut(IAudioStreams* outputs, const IAudioStreams* dry, int sampleCount)
{
    const CAudioStream silence(nullptr, 0, sampleCount, 1);
    for (int i = 0; outputs != nullptr && i < outputs->GetCount(); ++i)
    {
        DSP::CopyStream((*outputs)[i], StreamOrSilence(dry, i, silence), sampleCount);
    }
}

} // namespace

void CBypassProcessor::Init(int outputCount, int maxBlockSize)
{
    fadeBuffers.Clear();
    SizeBuffers(outputCount, maxBlockSize);
}

void CBypassProcessor::SetFadeLength(int samples)
{
    const float step = samples > 0 ? 1.0f / static_cast<float>(samples) : 0.0f;
    fadeStep = active ? step : -step;
    fading = fading && samples > 0;
    if (!fading)
    {
        fadeGain = active ? 1.0f : 0.0f;
    }
}

void CBypassProcessor::SetBypass(bool on)
{
    if (active == !on)
    {
        return;
    }
    active = !on;
    fadeStep = -fadeStep;
    fading = fadeStep < 0.0f || fadeStep > 0.0f;
}

void CBypassProcessor::Process(DSP::IFilter& filter, const CProcessBlock& block)
{
    Route(filter, block, block.inputs,
          [&filter](const CProcessBlock& routed)
          {
              filter.Process(routed);
              return true;
          });
}

bool CBypassProcessor::ProcessSilence(DSP::IFilter& filter, const CProcessBlock& block)
{
    const CEmptyStreams dry(filter.GetProcessInfo().GetInputs().GetCount(), block.sampleCount);
    return Route(filter, block, &dry,
                 [&filter](const CProcessBlock& routed) { return filter.ProcessSilence(routed); });
}

template <class Run>
bool CBypassProcessor::Route(DSP::IFilter& filter, const CProcessBlock& block, const IAudioStreams* dry,
                             Run run)
{
    if (active && !fading)
    {
        return run(block);
    }
    SizeBuffers(OutputCountOf(filter), block.sampleCount);
    CAudioStreams buffers(views.data(), static_cast<int>(views.size()));
    CProcessBlock unheard = block;
    unheard.outputs = &buffers;
    if (fading)
    {
        const bool sounds = run(unheard);
        Crossfade(block.outputs, dry, block.sampleCount);
        return sounds;
    }
    PutOut(block.outputs, dry, block.sampleCount);
    run(unheard);
    return false;
}

void CBypassProcessor::SizeBuffers(int count, int sampleCount)
{
    while (fadeBuffers.GetCount() < count)
    {
        fadeBuffers.Add(sampleCount);
    }
    views.resize(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i)
    {
        DSP::CDynamicAudioStream& buffer = fadeBuffers[i];
        if (buffer.GetSampleCount() < sampleCount)
        {
            buffer.Resize(sampleCount);
        }
        views[static_cast<std::size_t>(i)] = CAudioStream(buffer.GetData(), 0, sampleCount, 1);
    }
}

void CBypassProcessor::Crossfade(IAudioStreams* outputs, const IAudioStreams* dry, int sampleCount)
{
    const CAudioStream silence(nullptr, 0, sampleCount, 1);
    const float zero = 0.0f;
    const int count = outputs == nullptr ? 0 : std::min(outputs->GetCount(), static_cast<int>(views.size()));
    for (int i = 0; i < count; ++i)
    {
        IAudioStream& output = (*outputs)[i];
        const IAudioStream& input = StreamOrSilence(dry, i, silence);
        float* out = output.GetData();
        if (out == nullptr)
        {
            continue;
        }
        const float* const in = input.GetData() == nullptr ? &zero : input.GetData();
        const std::ptrdiff_t inStride = input.GetData() == nullptr ? 0 : input.GetStride();
        const float* const wet = views[static_cast<std::size_t>(i)].GetData();
        float gain = fadeGain;
        for (std::ptrdiff_t k = 0; k < sampleCount; ++k)
        {
            out[k * output.GetStride()] = wet[k] * gain + in[k * inStride] * (1.0f - gain);
            gain = NextGain(gain);
        }
    }
    for (int k = 0; k < sampleCount; ++k)
    {
        fadeGain = NextGain(fadeGain);
    }
    fading = fadeStep > 0.0f ? fadeGain < 1.0f : fadeGain > 0.0f;
}

float CBypassProcessor::NextGain(float gain) const
{
    return std::clamp(gain + fadeStep, 0.0f, 1.0f);
}

} // namespace Mirel::Audio::Plugin
