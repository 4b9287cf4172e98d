#include "Mirel/Audio/DSP/CBaseCoreDSPFilter.h"

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/StreamOperations.h"

#include <limits>

namespace Mirel::Audio::DSP
{

void CBaseCoreDSPFilter::Init(double newSampleRate, bool& ok)
{
    sampleRate = newSampleRate;
    ok = true;
    InitCore(ok);
    if (ok)
    {
        SetDefaultParams();
    }
    silentSamples = 0;
    ResetCore();
    UpdateOutputs();
}

void CBaseCoreDSPFilter::Process(const CProcessBlock& block)
{
    silentSamples = 0;
    if (block.inputs != nullptr && block.outputs != nullptr)
    {
        ProcessSamples(block.inputs, block.outputs, block.sampleCount, block.variations);
    }
    PostProcess(block);
}

bool CBaseCoreDSPFilter::ProcessSilence(const CProcessBlock& block)
{
    if (block.outputs == nullptr)
    {
        return false;
    }
    if (silentSamples < GetTailLength())
    {
        silentSamples += block.sampleCount;
        CEmptyStreams silence(GetProcessInfo().GetInputs().GetCount(), block.sampleCount);
        ProcessSamples(&silence, block.outputs, block.sampleCount, block.variations);
        CProcessBlock silentBlock = block;
        silentBlock.inputs = &silence;
        PostProcess(silentBlock);
        return true;
    }
    if (block.variations != nullptr && block.variations->GetCount() > 0)
    {
        SetParams((*block.variations)[0]);
    }
    ProcessSilentSamples(block.sampleCount);
    ClearStreams(*block.outputs);
    CountSilence(block.sampleCount);
    return false;
}

void CBaseCoreDSPFilter::CountSilence(int sampleCount)
{
    // The count stops at the top: wrapped to a negative it would start the tail again.
    const std::int64_t room = std::numeric_limits<std::int64_t>::max() - silentSamples;
    if (sampleCount <= room)
    {
        silentSamples += sampleCount;
    }
}

void CBaseCoreDSPFilter::UpdateOutputs()
{
    PrepareOutputs();
    ComputeOutputs();
}

void CBaseCoreDSPFilter::ProcessSilentSamples(int) {}

void CBaseCoreDSPFilter::InitCore(bool&) {}

void CBaseCoreDSPFilter::PostProcess(const CProcessBlock&) {}

void CBaseCoreDSPFilter::ProcessSamples(const IAudioStreams*, IAudioStreams*, int,
                                        const IConstParamsVariations*)
{
}

} // namespace Mirel::Audio::DSP
