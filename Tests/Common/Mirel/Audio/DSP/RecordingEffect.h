#pragma once

#include "Mirel/Audio/DSP/CBaseCoreDSPFilter.h"
#include "Mirel/Audio/DSP/COutputDataSync.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/Containers/TPointersValueVector.h"
#include "Mirel/Core/CDirty.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"
#include "Mirel/Math/CConstantFunction.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Tests
{

/// A mono effect that writes down what is asked of it. With an output it multiplies by its parameter "Gain".
class CRecordingEffect : public Mirel::Audio::DSP::CBaseCoreDSPFilter
{
public:
    explicit CRecordingEffect(int inputs = 1, int outputs = 0) : processInfo(inputs, outputs)
    {
        using namespace Mirel::DataModel::Objects;
        inputParamsInfo.Add(2, 0.0f, 10.0f, 3.0f, "Gain", "", "");
        inputParamsInfo.Add(2, 0.0f, 1.0f, 0.5f, "Other", "", "");
        outputCurvesInfo.Add(CParamInfo(), CParamInfo(), "Curve", "");
        outputParamsInfo.Add(2, 0.0f, 1.0f, 0.0f, "Level", "", "");
        dirty.Add();
    }

    CRecordingEffect(const CRecordingEffect& other)
        : CBaseCoreDSPFilter(other),
          trace(other.trace),
          params(other.params),
          heard(other.heard),
          tail(other.tail),
          canRun(other.canRun),
          hasClock(other.hasClock),
          processInfo(other.processInfo),
          dirty(other.dirty)
    {
    }

    CRecordingEffect& operator=(const CRecordingEffect&) = delete;
    ~CRecordingEffect() override = default;

    CRecordingEffect* Clone() const override { return new CRecordingEffect(*this); }

    const Mirel::DataModel::Objects::IConstProductInfo& GetProductInfo() const override { return product; }
    const Mirel::Audio::DSP::CProcessInfo& GetProcessInfo() const override { return processInfo; }

    void SetParams(const Mirel::Audio::DSP::IConstParamsValues& values) override
    {
        trace += 'P';
        params.clear();
        for (int i = 0; i < values.GetCount(); ++i)
        {
            params.push_back(values.GetValue(i));
        }
    }

    int GetTailLength() const override { return tail; }
    Mirel::Audio::DSP::IOutputDataSync* GetOutputDataSync() override { return hasClock ? &clock : nullptr; }
    const Mirel::Audio::DSP::ICurves& GetOutputCurves() const override { return curves; }
    Mirel::Audio::DSP::IDirtyMarks& GetOutputCurvesDirty() override { return dirty; }

    void SetLatency(int samples) { latency = samples; }
    std::int64_t GetSilentSamples() const { return silentSamples; }
    void SetSilentSamples(std::int64_t count) { silentSamples = count; }
    void SetCurve(float value) { curve.SetValue(value); }

    std::string trace;                     ///< A letter for each hook and for SetParams.
    std::vector<float> params{1.0f, 0.0f}; ///< As last set.
    std::vector<float> heard;              ///< Samples of the first input, zeros where there is no data.
    std::vector<int> blocks;               ///< Their lengths.
    int tail = 0;
    bool canRun = true;
    bool hasClock = false;

protected:
    void ProcessSilentSamples(int) override { trace += 's'; }
    void PrepareOutputs() override { trace += 'p'; }
    void ComputeOutputs() override { trace += 'c'; }

    void InitCore(bool& ok) override
    {
        trace += 'I';
        ok = canRun;
    }

    void ResetCore() override { trace += 'R'; }
    void PostProcess(const Mirel::Audio::DSP::CProcessBlock& block) override
    {
        trace += block.inputs == nullptr ? 'n' : 'o';
    }

    void ProcessSamples(const Mirel::Audio::DSP::IAudioStreams* inputs,
                        Mirel::Audio::DSP::IAudioStreams* outputs, int sampleCount,
                        const Mirel::Audio::DSP::IConstParamsVariations* variations) override
    {
        trace += 'S';
        if (variations != nullptr && variations->GetCount() > 0)
        {
            SetParams((*variations)[0]);
        }
        blocks.push_back(sampleCount);
        for (std::ptrdiff_t i = 0; i < sampleCount; ++i)
        {
            const float* in = inputs->GetCount() > 0 ? (*inputs)[0].GetData() : nullptr;
            const float sample = in == nullptr ? 0.0f : in[i * (*inputs)[0].GetStride()];
            heard.push_back(sample);
            if (outputs->GetCount() > 0 && (*outputs)[0].GetData() != nullptr)
            {
                (*outputs)[0].GetData()[i * (*outputs)[0].GetStride()] = sample * params[0];
            }
        }
    }

private:
    Mirel::DataModel::Objects::CProductInfo product{"Recorder", "1"};
    Mirel::Audio::DSP::CProcessInfo processInfo;
    Mirel::Audio::DSP::COutputDataSync clock;
    Mirel::Math::CConstantFunction curve;
    Mirel::Containers::TPointersValueVector<Mirel::Math::IFunction> curves{&curve};
    Mirel::Containers::TDynamicCollection<Mirel::Core::CDirty, Mirel::Core::IDirty> dirty;
};

} // namespace Tests
