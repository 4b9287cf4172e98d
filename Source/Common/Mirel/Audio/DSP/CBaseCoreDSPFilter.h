#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"

#include <cstdint>

namespace Mirel::Audio::DSP
{

/// The base of an effect: owns the rules for initialisation, for a block with signal and for a block that is
/// known to be silent. An effect fills in SetParams, its descriptions, its tail, and the hooks that it needs.
class CBaseCoreDSPFilter : public CDescribedFilter
{
public:
    void Init(double newSampleRate, bool& ok) override;
    int GetLatency() const override { return latency; }
    void Process(const CProcessBlock& block) override;

    /// Runs the filter on silence while its tail lasts. Past the tail it only takes parameter changes, tells
    /// the effect how many samples went by, and clears the outputs.
    bool ProcessSilence(const CProcessBlock& block) override;

    /// Must be called on the thread that processes audio, or with the processing stopped.
    void UpdateOutputs() override;

protected:
    /// Samples of silence past the tail.
    virtual void ProcessSilentSamples(int sampleCount);
    virtual void PrepareOutputs() {}
    virtual void ComputeOutputs() {}

    /// Sets sizes for the new sampleRate; clears ok if the filter cannot run at that rate.
    virtual void InitCore(bool& ok);
    /// Forgets all signal.
    virtual void ResetCore() {}
    virtual void PostProcess(const CProcessBlock& block);
    virtual void ProcessSamples(const IAudioStreams* inputs, IAudioStreams* outputs, int sampleCount,
                                const IConstParamsVariations* variations);

    double sampleRate = 0.0;        ///< In hertz.
    int latency = 0;                ///< In samples.
    std::int64_t silentSamples = 0; ///< Since the last block with signal.

private:
    void CountSilence(int sampleCount);
};

} // namespace Mirel::Audio::DSP
