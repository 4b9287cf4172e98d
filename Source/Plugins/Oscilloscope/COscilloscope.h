#pragma once

#include "Mirel/Audio/DSP/CBaseCoreDSPFilter.h"
#include "Mirel/Audio/DSP/COutputDataSync.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/Containers/TPointersValueVector.h"
#include "Mirel/Core/CDirty.h"
#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TCircularBuffer.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Math/THistogram.h"
#include "Plugins/Oscilloscope/TriggerSearch.h"

#include <array>
#include <cstddef>
#include <span>

namespace PluginsFilters
{

/// The effect: analyses one mono signal and puts no audio out.
///
/// It keeps the last second of the signal, after a delay, as the curve "Waveform" (x: -1 to 0 s), and counts
/// the amplitudes of the same second in the curve "Histogram" (x: amplitude -1 to 1, y: share of the fullest
/// bin). UpdateOutputs places the trace: Flow ends it at the newest sample, Loop leaves it standing while the
/// write head moves through it, Trigger begins it behind the newest crossing of the trigger level.
class COscilloscope : public Mirel::Audio::DSP::CBaseCoreDSPFilter
{
public:
    enum EParam
    {
        ViewMode,
        Sync,
        Delay,
        TriggerValue,
        TriggerDirection,
    };

    enum class EViewMode
    {
        Flow = 0,
        Loop = 1,
        Trigger = 2,
    };

    COscilloscope();
    COscilloscope(const COscilloscope& other);
    COscilloscope& operator=(const COscilloscope&) = delete;
    ~COscilloscope() override = default;

    COscilloscope* Clone() const override { return new COscilloscope(*this); }
    const Mirel::DataModel::Objects::IConstProductInfo& GetProductInfo() const override;
    const Mirel::Audio::DSP::CProcessInfo& GetProcessInfo() const override;

    /// Rates that round to less than one sample a second, or to more than maxSampleRate, are refused.
    void Init(double newSampleRate, bool& ok) override;
    void SetParams(const Mirel::Audio::DSP::IConstParamsValues& values) override;

    /// One second: what the window shows.
    int GetTailLength() const override { return waveform.GetSize(); }

    Mirel::Audio::DSP::IOutputDataSync* GetOutputDataSync() override { return &outputSync; }
    const Mirel::Audio::DSP::ICurves& GetOutputCurves() const override { return curves; }
    Mirel::Audio::DSP::IDirtyMarks& GetOutputCurvesDirty() override { return curvesDirty; }

    static constexpr double maxSampleRate = 1 << 28;

protected:
    void ProcessSamples(const Mirel::Audio::DSP::IAudioStreams* inputs,
                        Mirel::Audio::DSP::IAudioStreams* outputs, int sampleCount,
                        const Mirel::Audio::DSP::IConstParamsVariations* variations) override;
    void ProcessSilentSamples(int sampleCount) override;
    void ComputeOutputs() override;
    void InitCore(bool& ok) override;
    void ResetCore() override;

private:
    using CSplineTable =
        Mirel::Core::TLookupTable<float, Mirel::Core::TConstrainedSplineInterpolator<float, float>>;
    using CNearestTable = Mirel::Core::TLookupTable<float, Mirel::Core::TNearestInterpolator<float, float>>;
    using CDirtyMarks = Mirel::Containers::TDynamicCollection<Mirel::Core::CDirty, Mirel::Core::IDirty>;

    /// Samples that are gathered at a time from a stream that is not contiguous.
    static constexpr std::size_t gatherSize = 512;

    void ConnectCurves();
    void AnalyseStream(const Mirel::Audio::DSP::IAudioStream& stream, std::size_t sampleCount);
    void AnalyseGathered(const float* data, std::ptrdiff_t stride, std::size_t sampleCount);
    void Analyse(std::span<const float> block);
    void Show(std::span<const float> delayed);
    void PlaceTrace();

    bool newDataPending = false; ///< Samples came in since the last ComputeOutputs.
    Mirel::Math::TCircularLUTFunction<CSplineTable> waveform;
    Mirel::Audio::DSP::COutputDataSync outputSync;
    Mirel::Math::THistogram<CNearestTable> histogram;
    Mirel::Core::TCircularBuffer<float> delayLine;
    int delaySamples = 0;
    Mirel::Containers::TPointersValueVector<Mirel::Math::IFunction> curves;
    CDirtyMarks curvesDirty;
    EViewMode viewMode = EViewMode::Flow;
    bool sync = false;
    float triggerValue = 0.0f;
    ETriggerDirection triggerDirection = ETriggerDirection::Up;
    std::array<float, gatherSize> gathered{}; ///< Of use within a block alone.
};

} // namespace PluginsFilters
