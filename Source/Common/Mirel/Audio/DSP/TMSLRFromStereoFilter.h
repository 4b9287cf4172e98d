#pragma once

#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/CDescribedFilter.h"
#include "Mirel/Audio/DSP/CDynamicAudioStream.h"
#include "Mirel/Audio/DSP/CMidSideMatrix.h"
#include "Mirel/Audio/DSP/CPieceVariations.h"
#include "Mirel/Audio/DSP/StereoModeInfo.h"
#include "Mirel/Audio/DSP/TStereoFromMonoFilter.h"
#include "Mirel/Audio/DSP/TStereoToMidSideInfo.h"

#include <algorithm>
#include <array>

namespace Mirel::Audio::DSP
{

/// Feeds a stereo filter either left and right or mid and side, by a parameter "Stereo Mode" of its own that
/// stands before or behind the filter's parameters. A mode change crossfades along the ramp of the block's
/// variations. Where the filter has outputs, they are turned back into left and right.
///
/// In the names of the output descriptions "(L)" and "(R)" give way to two labels. A block with fewer
/// channels than declared is ignored.
template <class F>
class TMSLRFromStereoFilter : public CDescribedFilter
{
public:
    TMSLRFromStereoFilter(bool modeIsLast, const char* label1, const char* label2)
        : modeIndex(modeIsLast ? filter.GetInputParamsInfo().GetCount() : 0),
          firstParam(modeIsLast ? 0 : 1)
    {
        using namespace DataModel::Objects;
        const int count = GetFilterParamCount() + 1;
        for (int i = 0; i < count; ++i)
        {
            const bool isMode = i == modeIndex;
            inputParamsInfo.Add().CopyFrom(
                isMode ? StereoModeInfo() : std::as_const(filter).GetInputParamsInfo()[i - firstParam]);
        }
        outputParamsInfo =
            TStereoToMidSideInfo<CParamInfo, IParamInfo>(filter.GetOutputParamsInfo(), label1, label2);
        outputStringsInfo =
            TStereoToMidSideInfo<CStringInfo, IStringInfo>(filter.GetOutputStringsInfo(), label1, label2);
        outputCurvesInfo =
            TStereoToMidSideInfo<CCurveInfo, ICurveInfo>(filter.GetOutputCurvesInfo(), label1, label2);
        outputSurfacesInfo =
            TStereoToMidSideInfo<CSurfaceInfo, ISurfaceInfo>(filter.GetOutputSurfacesInfo(), label1, label2);
    }

    TMSLRFromStereoFilter(const TMSLRFromStereoFilter&) = default;
    TMSLRFromStereoFilter& operator=(const TMSLRFromStereoFilter&) = delete;
    ~TMSLRFromStereoFilter() override = default;

    TMSLRFromStereoFilter* Clone() const override { return new TMSLRFromStereoFilter(*this); }

    const DataModel::Objects::IConstProductInfo& GetProductInfo() const override
    {
        return filter.GetProductInfo();
    }
    const CProcessInfo& GetProcessInfo() const override { return filter.GetProcessInfo(); }

    void Init(double sampleRate, bool& ok) override
    {
        for (CDynamicAudioStream& channel : channels)
        {
            channel.Resize(pieceSize);
        }
        pieceVariations.SetValueCount(GetFilterParamCount());
        filter.Init(sampleRate, ok);
        if (ok)
        {
            SetDefaultParams();
        }
    }

    void Uninit() override { filter.Uninit(); }

    void SetParams(const IConstParamsValues& values) override
    {
        filter.SetParams(CConstParamsValuesDeMux(values, firstParam, GetLastParam()));
        matrix.SetMode(values.GetValue(modeIndex));
    }

    int GetTailLength() const override { return filter.GetTailLength(); }
    int GetLatency() const override { return filter.GetLatency(); }

    void Process(const CProcessBlock& block) override
    {
        if (!HasDeclaredStreams(block.inputs, GetProcessInfo().GetInputs()) ||
            !HasDeclaredStreams(block.outputs, GetProcessInfo().GetOutputs()))
        {
            return;
        }
        const CConstParamsVariationsDeMux variations(block.variations, firstParam, GetLastParam());
        matrix.SetMode(block.variations, modeIndex);
        if (matrix.IsIdentity())
        {
            CProcessBlock inner = block;
            inner.variations = &variations;
            filter.Process(inner);
        }
        else
        {
            ProcessEncoded(block, variations);
        }
        matrix.Rest();
    }

    bool ProcessSilence(const CProcessBlock& block) override
    {
        if (block.outputs == nullptr || !HasDeclaredStreams(block.outputs, GetProcessInfo().GetOutputs()))
        {
            return false;
        }
        const CConstParamsVariationsDeMux variations(block.variations, firstParam, GetLastParam());
        matrix.SetMode(block.variations, modeIndex);
        CProcessBlock inner = block;
        inner.variations = &variations;
        const bool sounds = filter.ProcessSilence(inner);
        if (sounds && HasOutputs() && !matrix.IsIdentity())
        {
            matrix.Decode((*block.outputs)[0], (*block.outputs)[1], 0, block.sampleCount);
        }
        else
        {
            matrix.Skip(block.sampleCount);
        }
        matrix.Rest();
        return sounds;
    }

    IOutputDataSync* GetOutputDataSync() override { return filter.GetOutputDataSync(); }
    void UpdateOutputs() override { filter.UpdateOutputs(); }

    const IConstParamsValues& GetOutputParams() const override { return filter.GetOutputParams(); }
    IOutputStrings& GetOutputStrings() override { return filter.GetOutputStrings(); }
    const ICurves& GetOutputCurves() const override { return filter.GetOutputCurves(); }
    IDirtyMarks& GetOutputCurvesDirty() override { return filter.GetOutputCurvesDirty(); }
    const ISurfaces& GetOutputSurfaces() const override { return filter.GetOutputSurfaces(); }
    IDirtyMarks& GetOutputSurfacesDirty() override { return filter.GetOutputSurfacesDirty(); }

private:
    /// Encoded samples that are held at a time: blocks of any length need no more memory.
    static constexpr int pieceSize = 1024;

    int GetFilterParamCount() const { return filter.GetInputParamsInfo().GetCount(); }
    int GetLastParam() const { return firstParam + GetFilterParamCount() - 1; }
    bool HasInputs() const { return GetProcessInfo().GetInputs().GetCount() > 0; }
    bool HasOutputs() const { return GetProcessInfo().GetOutputs().GetCount() > 0; }

    void ProcessEncoded(const CProcessBlock& block, const IConstParamsVariations& variations)
    {
        pieceVariations.Begin(&variations);
        int done = 0;
        do // a block without samples still reaches the filter
        {
            const int count = std::min(block.sampleCount - done, pieceSize);
            ProcessPiece(block, done, count);
            pieceVariations.Advance(count);
            done += count;
        } while (done < block.sampleCount);
    }

    void ProcessPiece(const CProcessBlock& block, int first, int count)
    {
        CMidSideMatrix decoding = matrix;
        CProcessBlock inner = block;
        inner.sampleCount = count;
        inner.variations = pieceVariations.Get();

        std::array<CAudioStream, 2> encoded;
        CAudioStreams inputs(encoded.data(), static_cast<int>(encoded.size()));
        if (HasInputs())
        {
            matrix.Encode((*block.inputs)[0], (*block.inputs)[1], first, count, channels[0].GetData(),
                          channels[1].GetData());
            encoded = {CAudioStream(channels[0].GetData(), 0, count, 1),
                       CAudioStream(channels[1].GetData(), 0, count, 1)};
            inner.inputs = &inputs;
        }
        else
        {
            matrix.Skip(count);
        }

        std::array<CAudioStream, 2> pieces;
        CAudioStreams outputs(pieces.data(), static_cast<int>(pieces.size()));
        if (HasOutputs())
        {
            pieces = {Piece((*block.outputs)[0], first, count), Piece((*block.outputs)[1], first, count)};
            inner.outputs = &outputs;
        }
        filter.Process(inner);
        if (HasOutputs())
        {
            decoding.Decode(pieces[0], pieces[1], 0, count);
        }
    }

    static CAudioStream Piece(IAudioStream& stream, int first, int count)
    {
        const int stride = stream.GetStride();
        return {stream.GetData(), first * stride, stride == 0 ? count : count * stride, stride};
    }

    F filter;
    int modeIndex;
    int firstParam; ///< Index of the filter's first parameter in the whole list.
    CMidSideMatrix matrix;
    std::array<CDynamicAudioStream, 2> channels;
    CPieceVariations pieceVariations;
};

} // namespace Mirel::Audio::DSP
