#include "Plugins/Oscilloscope/COscilloscope.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"
#include "Plugins/Oscilloscope/OscilloscopeInfo.h"

#include <algorithm>
#include <cstddef>

namespace PluginsFilters
{

using namespace Mirel;
using namespace Mirel::Audio::DSP;

namespace
{

constexpr float secondsShown = 1.0f;
constexpr int histogramBins = 151;
constexpr double maxDelaySeconds = 0.3;

COscilloscope::EViewMode ViewModeOf(float value)
{
    if (value <= 0.5f)
    {
        return COscilloscope::EViewMode::Flow;
    }
    return value <= 1.5f ? COscilloscope::EViewMode::Loop : COscilloscope::EViewMode::Trigger;
}

} // namespace

COscilloscope::COscilloscope() : waveform(-secondsShown, 0.0f), histogram(histogramBins, -1.0f, 1.0f)
{
    inputParamsInfo = OscilloscopeInputParams();
    outputCurvesInfo = OscilloscopeOutputCurves();
    ConnectCurves();
    curvesDirty.Add();
    curvesDirty.Add();
    // Made at their first use, which must not be on the audio thread.
    OscilloscopeProcess();
    OscilloscopeProduct();
}

COscilloscope::COscilloscope(const COscilloscope& other)
    : CBaseCoreDSPFilter(other),
      newDataPending(other.newDataPending),
      waveform(other.waveform),
      outputSync(other.outputSync),
      histogram(other.histogram),
      delayLine(other.delayLine),
      delaySamples(other.delaySamples),
      curvesDirty(other.curvesDirty),
      viewMode(other.viewMode),
      sync(other.sync),
      triggerValue(other.triggerValue),
      triggerDirection(other.triggerDirection)
{
    ConnectCurves();
}

void COscilloscope::ConnectCurves()
{
    curves = {&waveform, &histogram.GetFunction()};
}

const DataModel::Objects::IConstProductInfo& COscilloscope::GetProductInfo() const
{
    return OscilloscopeProduct();
}

const CProcessInfo& COscilloscope::GetProcessInfo() const
{
    return OscilloscopeProcess();
}

void COscilloscope::Init(double newSampleRate, bool& ok)
{
    CBaseCoreDSPFilter::Init(newSampleRate, ok);
    // The reset on the way started a new period; after an initialisation the first block is due.
    outputSync.SetSampleRate(sampleRate);
}

void COscilloscope::InitCore(bool& ok)
{
    // Written so that NaN is refused.
    ok = sampleRate >= 0.5 && sampleRate <= maxSampleRate;
    const double usedRate = ok ? sampleRate : 0.0;
    const int size = Core::TruncateToInt32(0.5 + usedRate);
    waveform.SetSize(size);
    outputSync.SetSampleRate(sampleRate);
    histogram.SetLength(size);
    // One sample more than the longest delay, which would otherwise wrap to none where it is a power of two.
    delayLine.SetSize(Core::TruncateToInt32(maxDelaySeconds * usedRate + 0.5) + 1);
}

void COscilloscope::ResetCore()
{
    waveform.Reset();
    newDataPending = false;
    outputSync.Reset();
    histogram.Reset();
    delayLine.Fill(0.0f);
}

void COscilloscope::SetParams(const IConstParamsValues& values)
{
    viewMode = ViewModeOf(values.GetValue(ViewMode));
    const bool newSync = values.GetValue(Sync) > 0.5f;
    if (newSync != sync)
    {
        sync = newSync;
        ResetCore();
    }
    delaySamples = Core::TruncateToInt32(0.001 * sampleRate * static_cast<double>(values.GetValue(Delay)));
    triggerValue = values.GetValue(TriggerValue);
    triggerDirection =
        values.GetValue(TriggerDirection) > 0.5f ? ETriggerDirection::Down : ETriggerDirection::Up;
}

void COscilloscope::ProcessSamples(const IAudioStreams* inputs, IAudioStreams*, int sampleCount,
                                   const IConstParamsVariations* variations)
{
    if (inputs == nullptr || inputs->GetCount() < 1)
    {
        return;
    }
    if (variations != nullptr && variations->GetCount() > 0)
    {
        SetParams((*variations)[0]);
    }
    if (sampleCount > 0)
    {
        AnalyseStream((*inputs)[0], static_cast<std::size_t>(sampleCount));
    }
    outputSync.AddSamples(sampleCount);
    newDataPending = sampleCount != 0;
}

void COscilloscope::AnalyseStream(const IAudioStream& stream, std::size_t sampleCount)
{
    const float* data = stream.GetData();
    const std::ptrdiff_t stride = stream.GetStride();
    if (data != nullptr && stride == 1)
    {
        Analyse({data, sampleCount});
    }
    else
    {
        AnalyseGathered(data, stride, sampleCount);
    }
}

void COscilloscope::AnalyseGathered(const float* data, std::ptrdiff_t stride, std::size_t sampleCount)
{
    // A channel that the host lacks is one number all along: it is spread once.
    const bool isConstant = data == nullptr || stride == 0;
    if (isConstant)
    {
        std::fill_n(gathered.begin(), std::min(gatherSize, sampleCount), data == nullptr ? 0.0f : *data);
    }
    for (std::size_t done = 0; done < sampleCount;)
    {
        const std::size_t count = std::min(gatherSize, sampleCount - done);
        for (std::size_t i = 0; i < count && !isConstant; ++i)
        {
            gathered[i] = data[static_cast<std::ptrdiff_t>(done + i) * stride];
        }
        Analyse({gathered.data(), count});
        done += count;
    }
}

void COscilloscope::Analyse(std::span<const float> block)
{
    // Any delay, negative ones included, wraps into the line like the ring that it is.
    const auto delay = static_cast<std::size_t>(delaySamples) & delayLine.Mask();
    // What comes out first is still in the line, the rest is in the block itself.
    const std::size_t fromLine = std::min(delay, block.size());
    for (std::size_t done = 0; done < fromLine;)
    {
        const auto piece = delayLine.GetPiece(delay - done, fromLine - done);
        Show(piece);
        done += piece.size();
    }
    Show(block.first(block.size() - fromLine));
    delayLine.Write(block);
}

void COscilloscope::Show(std::span<const float> delayed)
{
    histogram.Add(delayed);
    waveform.Write(delayed);
}

void COscilloscope::ProcessSilentSamples(int sampleCount)
{
    outputSync.AddSamples(sampleCount);
    waveform.WriteZeros(static_cast<std::size_t>(std::max(sampleCount, 0)));
}

void COscilloscope::ComputeOutputs()
{
    if (!newDataPending)
    {
        return;
    }
    newDataPending = false;
    PlaceTrace();
    histogram.Normalise();
    curvesDirty[0].SetDirty(true);
    curvesDirty[1].SetDirty(true);
}

void COscilloscope::PlaceTrace()
{
    const int head = waveform.GetWritePos();
    switch (viewMode)
    {
    case EViewMode::Loop:
        waveform.SetWindow(0, head);
        break;
    case EViewMode::Trigger:
    {
        const int found = FindTrigger(waveform.GetValues(), head, triggerValue, triggerDirection);
        const int start = found < 0 ? head : found;
        waveform.SetWindow(start, start);
        break;
    }
    case EViewMode::Flow:
        waveform.SetWindow(head, head);
        break;
    }
}

} // namespace PluginsFilters
