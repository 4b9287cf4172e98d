#pragma once

#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/TMSLRFromStereoFilter.h"
#include "Mirel/Audio/DSP/TStereoFromMonoFilter.h"

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace Tests
{

/// The effects of the composition that is made next, left then right: a composition keeps its own to itself.
inline std::vector<CRecordingEffect*> made;

template <int inputs, int outputs>
class TEffect : public CRecordingEffect
{
public:
    TEffect() : CRecordingEffect(inputs, outputs) { made.push_back(this); }
    TEffect(const TEffect& other) : CRecordingEffect(other) { made.push_back(this); }
    TEffect& operator=(const TEffect&) = delete;
    ~TEffect() override = default;
};

using CAnalyser = TEffect<1, 0>;
using CGenerator = TEffect<0, 1>;
using CProcessor = TEffect<1, 1>;

template <class F>
using TTop = Mirel::Audio::DSP::TMSLRFromStereoFilter<Mirel::Audio::DSP::TStereoFromMonoFilter<F>>;

/// A composition with its two effects and a pair of channels on either side.
template <class Filter>
struct TRig
{
    template <class... Arguments>
    explicit TRig(Arguments... arguments)
    {
        made.clear();
        filter = std::make_unique<Filter>(arguments...);
        left = made.at(0);
        right = made.at(1);
        bool ok = false;
        filter->Init(48000.0, ok);
    }

    void Process(std::vector<float>& l, std::vector<float>& r,
                 const Mirel::Audio::DSP::IConstParamsVariations* variations = nullptr)
    {
        const auto count = static_cast<int>(l.size());
        std::array<Mirel::Audio::DSP::CAudioStream, 2> in{
            Mirel::Audio::DSP::CAudioStream(l.data(), 0, count, 1),
            Mirel::Audio::DSP::CAudioStream(r.data(), 0, count, 1)};
        std::array<Mirel::Audio::DSP::CAudioStream, 2> out{
            Mirel::Audio::DSP::CAudioStream(outL.data(), 0, count, 1),
            Mirel::Audio::DSP::CAudioStream(outR.data(), 0, count, 1)};
        Mirel::Audio::DSP::CAudioStreams inputs(in.data(), 2);
        Mirel::Audio::DSP::CAudioStreams outputs(out.data(), 2);
        filter->Process({&inputs, &outputs, count, variations, nullptr});
    }

    std::unique_ptr<Filter> filter;
    CRecordingEffect* left = nullptr;
    CRecordingEffect* right = nullptr;
    std::vector<float> outL = std::vector<float>(6000);
    std::vector<float> outR = std::vector<float>(6000);
};

template <class F>
TRig<TTop<F>> MakeTop(bool modeIsLast = false)
{
    return TRig<TTop<F>>(modeIsLast, "(1)", "(2)");
}

inline std::vector<float> Ramp(std::size_t count, float from)
{
    std::vector<float> samples;
    for (std::size_t i = 0; i < count; ++i)
    {
        samples.push_back(from + static_cast<float>(i) / 1024.0f);
    }
    return samples;
}

/// Three parameters (mode, gain, other), of which the mode moves.
inline Mirel::Audio::DSP::CDynamicParamsVariations ModeRamp(float from, float slope)
{
    Mirel::Audio::DSP::CDynamicParamsVariations variations(3);
    variations.Resize(2);
    variations[0].SetValue(0, from);
    variations[0].SetValue(1, 2.0f);
    variations[1].SetValue(0, slope);
    return variations;
}

} // namespace Tests
