#pragma once

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Plugins/Oscilloscope/COscilloscope.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace Tests
{

/// An oscilloscope with what a host does around it.
class CScopeRig
{
public:
    explicit CScopeRig(double sampleRate)
    {
        bool ok = false;
        scope.Init(sampleRate, ok);
        initialised = ok;
    }

    void Set(PluginsFilters::COscilloscope::EParam param, float value)
    {
        values[param] = value;
        scope.SetParams(Mirel::Audio::DSP::CParamsValues(values.data(), static_cast<int>(values.size())));
    }

    void Process(const float* samples, int count,
                 const Mirel::Audio::DSP::IConstParamsVariations* variations = nullptr)
    {
        // The view is of mutable samples, as a host's buffers are; an analyser leaves them alone.
        Mirel::Audio::DSP::CAudioStream stream(const_cast<float*>(samples), 0, count, 1);
        Mirel::Audio::DSP::CAudioStreamToStreams inputs(&stream);
        Mirel::Audio::DSP::CEmptyStreams outputs(0, count);
        scope.Process({&inputs, &outputs, count, variations, nullptr});
    }

    void Process(const std::vector<float>& samples)
    {
        Process(samples.data(), static_cast<int>(samples.size()));
    }

    bool Silence(int count)
    {
        Mirel::Audio::DSP::CEmptyStreams outputs(0, count);
        return scope.ProcessSilence({nullptr, &outputs, count, nullptr, nullptr});
    }

    float Waveform(float x) const { return scope.GetOutputCurves()[0](x); }
    float Histogram(float x) const { return scope.GetOutputCurves()[1](x); }

    /// The share of a bin in the fullest, read at its centre.
    float Bin(int bin) const { return Histogram(static_cast<float>(bin - 75) / 75.0f); }

    bool IsDirty(int curve) { return scope.GetOutputCurvesDirty()[curve].IsDirty(); }

    void Clean()
    {
        scope.GetOutputCurvesDirty()[0].SetDirty(false);
        scope.GetOutputCurvesDirty()[1].SetDirty(false);
    }

    PluginsFilters::COscilloscope scope;
    bool initialised = false;

private:
    std::array<float, 5> values{};
};

/// Reproducible noise, evenly spread from -range to range.
inline std::vector<float> Noise(std::size_t count, float range, std::uint32_t seed = 1)
{
    std::vector<float> noise(count);
    for (float& sample : noise)
    {
        seed = seed * 1664525U + 1013904223U;
        sample = (static_cast<float>(seed >> 8) / 8388608.0f - 1.0f) * range;
    }
    return noise;
}

} // namespace Tests
