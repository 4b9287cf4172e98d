#pragma once

#include "Mirel/Audio/DSP/IAudioStream.h"
#include "Mirel/Containers/TDynamicVector.h"

namespace Mirel::Audio::DSP
{

/// A channel with storage of its own.
class CDynamicAudioStream : public IAudioStream
{
public:
    explicit CDynamicAudioStream(int sampleCount = 0) : samples(sampleCount) {}

    /// Allocates where the size calls for it; new samples are 0.
    void Resize(int sampleCount) { samples.Resize(sampleCount); }

    const float* GetData() const override { return samples.GetData(); }
    float* GetData() override { return samples.GetData(); }
    int GetSampleCount() const override { return samples.GetCount(); }
    int GetStride() const override { return 1; }

private:
    Containers::TDynamicVector<float, Containers::CStepGrowthStrategy> samples;
};

} // namespace Mirel::Audio::DSP
