#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/DSP/COutputDataSync.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tests
{

/// A filter that does nothing to audio: parameters with ranges that tell them apart, outputs set by the test,
/// a refresh clock and presets on demand.
class CTestFilter : public Mirel::Audio::DSP::CDescribedFilter
{
public:
    using CLegacyPresets = Mirel::Audio::DSP::CLegacyPresets;

    /// Input i runs from -i - 1 to i + 1 and rests at 0.5; output i runs from 0 to 1.
    explicit CTestFilter(int inputs = 3, int outputs = 0)
    {
        using namespace Mirel::DataModel::Objects;
        for (int i = 0; i < inputs; ++i)
        {
            const auto bound = static_cast<float>(i + 1);
            inputParamsInfo.Add(ValueKindReal, -bound, bound, 0.5f, ("In " + std::to_string(i)).c_str(), "",
                                "");
        }
        for (int i = 0; i < outputs; ++i)
        {
            outputParamsInfo.Add(ValueKindReal, 0.0f, 1.0f, 0.0f, ("Out " + std::to_string(i)).c_str(), "",
                                 "");
        }
        outputStorage.resize(static_cast<std::size_t>(outputs));
        outputValues = Mirel::Audio::DSP::CParamsValues(outputStorage.data(), outputs);
    }
    CTestFilter(const CTestFilter&) = delete;
    CTestFilter& operator=(const CTestFilter&) = delete;

    Mirel::Audio::DSP::IFilter* Clone() const override { return nullptr; }
    const Mirel::DataModel::Objects::IConstProductInfo& GetProductInfo() const override { return product; }
    void Init(double sampleRate, bool& ok) override
    {
        lastSampleRate = sampleRate;
        ok = runsAtAnyRate;
        if (sync)
        {
            sync->SetSampleRate(sampleRate);
        }
    }
    void SetParams(const Mirel::Audio::DSP::IConstParamsValues&) override {}
    const Mirel::Audio::DSP::CProcessInfo& GetProcessInfo() const override { return process; }
    int GetTailLength() const override { return 0; }
    int GetLatency() const override { return 0; }
    void Process(const Mirel::Audio::DSP::CProcessBlock&) override {}
    bool ProcessSilence(const Mirel::Audio::DSP::CProcessBlock&) override { return false; }
    Mirel::Audio::DSP::IOutputDataSync* GetOutputDataSync() override { return sync ? &*sync : nullptr; }
    void UpdateOutputs() override {}
    const Mirel::Audio::DSP::IConstParamsValues& GetOutputParams() const override { return outputValues; }
    const CLegacyPresets& GetFactoryPresets() const override { return *presets; }

    void SetOutput(int index, float value) { outputStorage[static_cast<std::size_t>(index)] = value; }

    std::optional<Mirel::Audio::DSP::COutputDataSync> sync;
    std::unique_ptr<CLegacyPresets> presets = std::make_unique<CLegacyPresets>();
    bool runsAtAnyRate = true;
    double lastSampleRate = 0.0;

private:
    Mirel::DataModel::Objects::CProductInfo product{"Test"};
    Mirel::Audio::DSP::CProcessInfo process{2, 0};
    std::vector<float> outputStorage;
    Mirel::Audio::DSP::CParamsValues outputValues;
};

} // namespace Tests
