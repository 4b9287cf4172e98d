#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/DSP/COutputDataSync.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace Tests
{

/// A filter that writes down each block that it is given. Its inputs' parameters "A" and "B" run from 0 to
/// 10, its output parameter "Level" from 0 to 1. With outputs, it puts out twice its input.
class CListeningFilter : public Mirel::Audio::DSP::CDescribedFilter
{
public:
    struct CBlock
    {
        bool silent = false;
        int sampleCount = 0;
        std::vector<std::vector<float>> inputs; ///< Without data: empty.
        std::vector<int> inputStrides;
        std::vector<int> outputStrides;
        std::vector<std::vector<float>> variations; ///< Order by order.
    };

    CListeningFilter(int inputs, int outputs) : process(inputs, outputs)
    {
        using namespace Mirel::DataModel::Objects;
        inputParamsInfo.Add(ValueKindReal, 0.0F, 10.0F, 0.0F, "A", "", "");
        inputParamsInfo.Add(ValueKindReal, 0.0F, 10.0F, 0.0F, "B", "", "");
        outputParamsInfo.Add(ValueKindReal, 0.0F, 1.0F, 0.0F, "Level", "", "");
    }
    CListeningFilter(const CListeningFilter&) = delete;
    CListeningFilter& operator=(const CListeningFilter&) = delete;

    Mirel::Audio::DSP::IFilter* Clone() const override { return nullptr; }
    const Mirel::DataModel::Objects::IConstProductInfo& GetProductInfo() const override { return product; }
    void Init(double, bool& ok) override { ok = runs; }
    void SetParams(const Mirel::Audio::DSP::IConstParamsValues&) override {}
    const Mirel::Audio::DSP::CProcessInfo& GetProcessInfo() const override { return process; }
    int GetTailLength() const override { return 0; }
    int GetLatency() const override { return 0; }
    void UpdateOutputs() override { ++updates; }
    const Mirel::Audio::DSP::IConstParamsValues& GetOutputParams() const override { return level; }

    void Process(const Mirel::Audio::DSP::CProcessBlock& block) override { Hear(block, false); }
    bool ProcessSilence(const Mirel::Audio::DSP::CProcessBlock& block) override
    {
        Hear(block, true);
        return false;
    }

    bool runs = true;
    int updates = 0;
    float levelValue = 0.0F;
    std::vector<CBlock> blocks;

private:
    void Hear(const Mirel::Audio::DSP::CProcessBlock& block, bool silent)
    {
        CBlock heard;
        heard.silent = silent;
        heard.sampleCount = block.sampleCount;
        for (int i = 0; i < block.inputs->GetCount(); ++i)
        {
            const auto& stream = static_cast<const Mirel::Audio::DSP::IAudioStream&>((*block.inputs)[i]);
            heard.inputStrides.push_back(stream.GetStride());
            std::vector<float> samples;
            for (std::ptrdiff_t s = 0; stream.GetData() != nullptr && s < block.sampleCount; ++s)
            {
                samples.push_back(stream.GetData()[s * stream.GetStride()]);
            }
            heard.inputs.push_back(samples);
        }
        for (int i = 0; i < block.outputs->GetCount(); ++i)
        {
            Mirel::Audio::DSP::IAudioStream& stream = (*block.outputs)[i];
            heard.outputStrides.push_back(stream.GetStride());
            for (std::ptrdiff_t s = 0; s < block.sampleCount; ++s)
            {
                const auto channel =
                    std::min<std::size_t>(static_cast<std::size_t>(i), heard.inputs.size() - 1);
                stream.GetData()[s * stream.GetStride()] =
                    2.0F * heard.inputs[channel][static_cast<std::size_t>(s)];
            }
        }
        for (int k = 0; k < block.variations->GetCount(); ++k)
        {
            heard.variations.push_back(
                {(*block.variations)[k].GetValue(0), (*block.variations)[k].GetValue(1)});
        }
        blocks.push_back(heard);
    }

    Mirel::DataModel::Objects::CProductInfo product{"Listener"};
    Mirel::Audio::DSP::CProcessInfo process;
    Mirel::Audio::DSP::CParamsValues level{&levelValue, 1};
};

} // namespace Tests
