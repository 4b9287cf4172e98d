#include "AAXPlugin/CAAXPluginParameters.h"

#include "AAXPlugin/CFirstFailure.h"
#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/EditorFactory.h"
#include "AAXPlugin/Guarded.h"
#include "AAXPlugin/ProcessFields.h"
#include "AAXPlugin/StateChunk.h"
#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Audio/Plugin/PresetFiles.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <algorithm>
#include <cstring>

namespace MirelExt::AAXPlugin
{

using Mirel::Audio::DSP::IFilter;
using Mirel::Audio::Plugin::CAudioPluginDefaultSettings;
using Mirel::Audio::Plugin::CAudioPluginInternalsBase;
using Mirel::Audio::Plugin::StateFromText;
using Mirel::Audio::Plugin::StateToText;
using Mirel::DataModel::Objects::ICurveInfo;

namespace
{

constexpr const char* InputPrefix = "";
constexpr const char* OutputPrefix = "OUT:";
constexpr std::uint32_t ChannelCountMask = 0xFFF;

std::unique_ptr<CAudioPluginInternalsBase> MakeInternals(const std::string& modulePath)
{
    std::unique_ptr<IFilter> filter = PluginsFilters::CreateTopLevelFilter();
    auto settings = std::make_unique<CAudioPluginDefaultSettings>(modulePath, filter->GetInputParamsInfo(),
                                                                  filter->GetOutputParamsInfo());
    return std::make_unique<CAudioPluginInternalsBase>(std::move(filter), std::move(settings), 0);
}

int ChannelsOf(std::uint32_t stemFormat)
{
    return static_cast<int>(stemFormat & ChannelCountMask);
}

} // namespace

CAAXPluginParameters::CAAXPluginParameters(const std::string& modulePath)
    : internals(MakeInternals(modulePath)),
      processContext(*internals, inputAdapters, audioThread)
{
    internals->GetModel().SetFactory(&modelFactory);
    SetEditorFactory(*internals);
    MakeAdapters(*internals, audioThread, inputAdapters, outputAdapters);
}

CAAXPluginParameters::~CAAXPluginParameters()
{
    // The model in the internals listens to the adapters.
    internals.reset();
}

std::int32_t CAAXPluginParameters::QueryInterface(const ACFInterfaceId& id, void** out)
{
    if (id != InterfaceIdOf<IPublishedCurves> || out == nullptr)
    {
        return AAXExtEffectParameters::QueryInterface(id, out);
    }
    *out = static_cast<IPublishedCurves*>(this);
    AddReference();
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::EffectInit()
{
    MakeParameters();
    std::int32_t result = AAXExtEffectParameters::EffectInit();
    if (result == AAXResult::Ok)
    {
        result = InitProcessing();
    }
    if (result == AAXResult::Ok)
    {
        internals->Init(inputAdapters, outputAdapters);
        result = GetController().SetSignalLatency(internals->GetFilter().GetLatency());
    }
    return result;
}

void CAAXPluginParameters::MakeParameters()
{
    inputAdapters[0].SetIdentifier(GetMasterBypassIdentifier());
    for (int i = 0; i < inputAdapters.GetCount(); ++i)
    {
        AddParameter(inputAdapters[i].MakeParameter(InputPrefix));
    }
    for (int i = 0; i < outputAdapters.GetCount(); ++i)
    {
        AddParameter(outputAdapters[i].MakeParameter(OutputPrefix));
    }
}

std::int32_t CAAXPluginParameters::InitProcessing()
{
    std::uint32_t inputFormat = 0;
    std::uint32_t outputFormat = 0;
    double sampleRate = 0.0;
    CFirstFailure calls;
    calls.Then([&] { return GetController().GetInputStemFormat(&inputFormat); })
        .Then([&] { return GetController().GetOutputStemFormat(&outputFormat); })
        .Then([&] { return GetController().GetSampleRate(&sampleRate); });
    if (calls.GetResult() != AAXResult::Ok)
    {
        return calls.GetResult();
    }
    processContext.SetHostChannels({ChannelsOf(inputFormat), ChannelsOf(outputFormat)});
    if (!processContext.Init(sampleRate))
    {
        return AAXResult::Failed;
    }
    const CAAXPluginProcessContext* context = &processContext;
    return GetController().PostPacket(FieldProcessContext, &context, PointerPacketSize);
}

std::int32_t CAAXPluginParameters::GetChunkCount(std::int32_t* count)
{
    const std::int32_t result = AAXExtEffectParameters::GetChunkCount(count);
    if (result == AAXResult::Ok)
    {
        ++*count;
    }
    return result;
}

std::int32_t CAAXPluginParameters::GetChunkId(std::int32_t index, std::uint32_t* chunkId)
{
    std::int32_t ofBase = 0;
    const std::int32_t result = AAXExtEffectParameters::GetChunkCount(&ofBase);
    if (result != AAXResult::Ok || index != ofBase)
    {
        return AAXExtEffectParameters::GetChunkId(index, chunkId);
    }
    if (chunkId == nullptr)
    {
        return AAXResult::Failed;
    }
    *chunkId = StateChunkId;
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::GetChunkSize(std::uint32_t chunkId, std::uint32_t* size)
{
    if (chunkId != StateChunkId)
    {
        return AAXExtEffectParameters::GetChunkSize(chunkId, size);
    }
    return Guarded(
        [&]
        {
            std::string text;
            if (size == nullptr || !StateToText(*internals, text))
            {
                return AAXResult::Failed;
            }
            announcedStateSize = StateChunkSize(text);
            *size = static_cast<std::uint32_t>(announcedStateSize);
            return AAXResult::Ok;
        });
}

std::int32_t CAAXPluginParameters::GetChunk(std::uint32_t chunkId, SAAXChunk* chunk)
{
    if (chunkId != StateChunkId || chunk == nullptr)
    {
        return AAXExtEffectParameters::GetChunk(chunkId, chunk);
    }
    return Guarded([&] { return GetStateChunk(*chunk); });
}

std::int32_t CAAXPluginParameters::GetStateChunk(SAAXChunk& chunk)
{
    // The state may have grown since the host made room for it.
    std::string text;
    if (!StateToText(*internals, text))
    {
        return AAXResult::Failed;
    }
    if (StateChunkSize(text) > announcedStateSize)
    {
        return AAXResult::WrongChunkSize;
    }
    WriteStateChunk(text, chunk);
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::SetChunk(std::uint32_t chunkId, const SAAXChunk* chunk)
{
    if (chunkId == StateChunkId && chunk != nullptr)
    {
        const std::int32_t result = Guarded(
            [&]
            {
                const std::string_view text = StateTextOf(*chunk);
                if (!text.empty())
                {
                    StateFromText(text.data(), text.size(), *internals);
                }
                return AAXResult::Ok;
            });
        if (result != AAXResult::Ok)
        {
            return result;
        }
    }
    return AAXExtEffectParameters::SetChunk(chunkId, chunk);
}

std::int32_t CAAXPluginParameters::CompareActiveChunk(const SAAXChunk* chunk, std::int32_t* equal)
{
    const std::int32_t result = AAXExtEffectParameters::CompareActiveChunk(chunk, equal);
    if (result != AAXResult::Ok || *equal == 0 || chunk->chunkId != StateChunkId)
    {
        return result;
    }
    return Guarded(
        [&]
        {
            *equal = 0;
            const std::string_view text = StateTextOf(*chunk);
            std::string present;
            *equal = !text.empty() && StateToText(*internals, present) && text == present ? 1 : 0;
            return AAXResult::Ok;
        });
}

std::int32_t CAAXPluginParameters::GetCustomData(std::uint32_t dataId, std::uint32_t size, void* data,
                                                 std::uint32_t* written)
{
    if (dataId != InternalsDataId)
    {
        return AAXExtEffectParameters::GetCustomData(dataId, size, data, written);
    }
    CAudioPluginInternalsBase* pointer = internals.get();
    if (size != PointerPacketSize || data == nullptr || written == nullptr)
    {
        return AAXResult::Failed;
    }
    std::memcpy(data, &pointer, PointerPacketSize);
    *written = PointerPacketSize;
    return AAXResult::Ok;
}

const ICurveInfo* CAAXPluginParameters::FindCurve(std::int32_t curve) const
{
    const auto& curves = static_cast<const IFilter&>(internals->GetFilter()).GetOutputCurvesInfo();
    return curve >= 0 && curve < curves.GetCount() ? &curves[curve] : nullptr;
}

std::int32_t CAAXPluginParameters::GetCurveCount(std::int32_t* count)
{
    if (count == nullptr)
    {
        return AAXResult::Failed;
    }
    *count = static_cast<const IFilter&>(internals->GetFilter()).GetOutputCurvesInfo().GetCount();
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::GetCurveName(std::int32_t curve, const char** name)
{
    const ICurveInfo* info = FindCurve(curve);
    if (info == nullptr || name == nullptr)
    {
        return AAXResult::Failed;
    }
    *name = info->GetName();
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::GetCurveRange(std::int32_t curve, float* minX, float* maxX, float* minY,
                                                 float* maxY)
{
    const Mirel::DataModel::Objects::IConstCurveInfo* info = FindCurve(curve);
    if (info == nullptr || minX == nullptr || maxX == nullptr || minY == nullptr || maxY == nullptr)
    {
        return AAXResult::Failed;
    }
    *minX = info->GetXInfo().GetMin();
    *maxX = info->GetXInfo().GetMax();
    *minY = info->GetYInfo().GetMin();
    *maxY = info->GetYInfo().GetMax();
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::EvaluateCurve(std::int32_t curve, const float* x, std::int32_t count,
                                                 float* y)
{
    if (FindCurve(curve) == nullptr || x == nullptr || y == nullptr || count < 0)
    {
        return AAXResult::Failed;
    }
    const auto evaluate = [&](const Mirel::Math::IFunction& function)
    { std::transform(x, x + count, y, [&](float place) { return function(place); }); };
    return Guarded(
        [&]
        {
            if (!internals->GetOutputCaptures().GetCurves()[curve].Read(evaluate))
            {
                std::fill_n(y, count, 0.0F);
            }
            return AAXResult::Ok;
        });
}

std::int32_t CAAXPluginParameters::GetRefreshes(std::int64_t* count, std::int64_t* lastPosition)
{
    if (count == nullptr || lastPosition == nullptr)
    {
        return AAXResult::Failed;
    }
    const CAAXPluginProcessContext::CRefreshes refreshes = processContext.GetRefreshes();
    *count = refreshes.count;
    *lastPosition = refreshes.lastPosition;
    return AAXResult::Ok;
}

std::int32_t CAAXPluginParameters::GetPublications(std::int64_t* count)
{
    if (count == nullptr)
    {
        return AAXResult::Failed;
    }
    *count = processContext.GetRefreshes().published;
    return AAXResult::Ok;
}

} // namespace MirelExt::AAXPlugin
