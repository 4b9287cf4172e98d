#pragma once

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/DSP/COutputDataSyncMux.h"
#include "Mirel/Audio/DSP/TMonoToStereoInfo.h"
#include "Mirel/Containers/TVectorMux.h"

#include <algorithm>

namespace Mirel::Audio::DSP
{

/// Whether there are at least as many channels as declared; a missing list has none.
template <class Declared>
bool HasDeclaredStreams(const IAudioStreams* streams, const Declared& declared)
{
    return (streams == nullptr ? 0 : streams->GetCount()) >= declared.GetCount();
}

/// Two of a mono filter, one a channel, with the same parameters. Its outputs are those of the left channel,
/// then those of the right. A block with fewer channels than declared is ignored.
template <class F>
class TStereoFromMonoFilter : public CDescribedFilter
{
public:
    TStereoFromMonoFilter() : processInfo(MakeProcessInfo(left.GetProcessInfo()))
    {
        using namespace DataModel::Objects;
        for (int i = 0; i < left.GetInputParamsInfo().GetCount(); ++i)
        {
            inputParamsInfo.Add().CopyFrom(left.GetInputParamsInfo()[i]);
        }
        outputParamsInfo = TMonoToStereoInfo<CParamInfo, IParamInfo>(left.GetOutputParamsInfo());
        outputStringsInfo = TMonoToStereoInfo<CStringInfo, IStringInfo>(left.GetOutputStringsInfo());
        outputCurvesInfo = TMonoToStereoInfo<CCurveInfo, ICurveInfo>(left.GetOutputCurvesInfo());
        outputSurfacesInfo = TMonoToStereoInfo<CSurfaceInfo, ISurfaceInfo>(left.GetOutputSurfacesInfo());
    }

    TStereoFromMonoFilter(const TStereoFromMonoFilter& other)
        : CDescribedFilter(other),
          left(other.left),
          right(other.right),
          processInfo(other.processInfo)
    {
    }

    TStereoFromMonoFilter& operator=(const TStereoFromMonoFilter&) = delete;
    ~TStereoFromMonoFilter() override = default;

    TStereoFromMonoFilter* Clone() const override { return new TStereoFromMonoFilter(*this); }

    const DataModel::Objects::IConstProductInfo& GetProductInfo() const override
    {
        return left.GetProductInfo();
    }
    const CProcessInfo& GetProcessInfo() const override { return processInfo; }

    void Init(double sampleRate, bool& ok) override
    {
        bool leftOk = true;
        bool rightOk = true;
        left.Init(sampleRate, leftOk);
        right.Init(sampleRate, rightOk);
        ok = leftOk && rightOk;
        if (ok)
        {
            SetDefaultParams();
        }
    }

    void Uninit() override
    {
        left.Uninit();
        right.Uninit();
    }

    void SetParams(const IConstParamsValues& values) override
    {
        left.SetParams(values);
        right.SetParams(values);
    }

    int GetTailLength() const override { return std::max(left.GetTailLength(), right.GetTailLength()); }
    int GetLatency() const override { return std::max(left.GetLatency(), right.GetLatency()); }

    void Process(const CProcessBlock& block) override
    {
        if (HasDeclaredStreams(block.inputs, processInfo.GetInputs()) &&
            HasDeclaredStreams(block.outputs, processInfo.GetOutputs()))
        {
            ForEachChannel(block, [](F& filter, const CProcessBlock& channel) { filter.Process(channel); });
        }
    }

    bool ProcessSilence(const CProcessBlock& block) override
    {
        bool sounds = false;
        if (block.outputs != nullptr && HasDeclaredStreams(block.outputs, processInfo.GetOutputs()))
        {
            ForEachChannel(block, [&sounds](F& filter, const CProcessBlock& channel)
                           { sounds = filter.ProcessSilence(channel) || sounds; });
        }
        return sounds;
    }

    IOutputDataSync* GetOutputDataSync() override { return outputSync.HasClock() ? &outputSync : nullptr; }

    void UpdateOutputs() override
    {
        left.UpdateOutputs();
        right.UpdateOutputs();
    }

    const IConstParamsValues& GetOutputParams() const override { return outputParams; }
    IOutputStrings& GetOutputStrings() override { return outputStrings; }
    const ICurves& GetOutputCurves() const override { return outputCurves; }
    IDirtyMarks& GetOutputCurvesDirty() override { return outputCurvesDirty; }
    const ISurfaces& GetOutputSurfaces() const override { return outputSurfaces; }
    IDirtyMarks& GetOutputSurfacesDirty() override { return outputSurfacesDirty; }

private:
    static CProcessInfo MakeProcessInfo(const CProcessInfo& mono)
    {
        using DataModel::IObjectInfo;
        const TMonoToStereoInfo<CInputInfo, IObjectInfo> inputs(mono.GetInputs());
        const TMonoToStereoInfo<COutputInfo, IObjectInfo> outputs(mono.GetOutputs());
        return CProcessInfo(inputs, outputs);
    }

    /// Calls action(filter, block) for both channels, each with the stream of its side; a side without
    /// declared streams gives an empty stream.
    template <class Action>
    void ForEachChannel(const CProcessBlock& block, Action action)
    {
        CAudioStream none(nullptr, 0, block.sampleCount, 1);
        const bool hasInputs = processInfo.GetInputs().GetCount() > 0 &&
                               HasDeclaredStreams(block.inputs, processInfo.GetInputs());
        const bool hasOutputs = processInfo.GetOutputs().GetCount() > 0;
        int index = 0;
        for (F* filter : {&left, &right})
        {
            CAudioStreamToStreams inputs(hasInputs ? &(*block.inputs)[index] : &none);
            CAudioStreamToStreams outputs(hasOutputs ? &(*block.outputs)[index] : &none);
            CProcessBlock channel = block;
            channel.inputs = &inputs;
            channel.outputs = &outputs;
            action(*filter, channel);
            ++index;
        }
    }

    F left;
    F right;
    CProcessInfo processInfo;
    COutputDataSyncMux outputSync{left, right};
    CConstParamsValuesMux outputParams{left.GetOutputParams(), right.GetOutputParams()};
    Containers::TVectorMux<IOutputString> outputStrings{left.GetOutputStrings(), right.GetOutputStrings()};
    Containers::TConstVectorMux<Math::IFunction> outputCurves{left.GetOutputCurves(),
                                                              right.GetOutputCurves()};
    Containers::TVectorMux<Core::IDirty> outputCurvesDirty{left.GetOutputCurvesDirty(),
                                                           right.GetOutputCurvesDirty()};
    Containers::TConstVectorMux<Math::IBinaryFunction> outputSurfaces{left.GetOutputSurfaces(),
                                                                      right.GetOutputSurfaces()};
    Containers::TVectorMux<Core::IDirty> outputSurfacesDirty{left.GetOutputSurfacesDirty(),
                                                             right.GetOutputSurfacesDirty()};
};

} // namespace Mirel::Audio::DSP
