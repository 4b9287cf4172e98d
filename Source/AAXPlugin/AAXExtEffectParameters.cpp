#include "AAXPlugin/AAXExtEffectParameters.h"

#include "AAXPlugin/BufferText.h"
#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/ChunkName.h"
#include "AAXPlugin/Guarded.h"

#include <cmath>

namespace MirelExt::AAXPlugin
{

namespace
{

template <class T>
std::int32_t Give(T* out, T value)
{
    if (out == nullptr)
    {
        return AAXResult::Failed;
    }
    *out = value;
    return AAXResult::Ok;
}

/// Calls with the parameter of that identifier.
template <class TCall>
std::int32_t WithParameter(const CParameterManager& parameters, const char* id, const TCall& call)
{
    return Guarded(
        [&]
        {
            CAAXPluginParameter* parameter = parameters.Find(id);
            return parameter != nullptr ? call(*parameter) : AAXResult::Failed;
        });
}

} // namespace

std::int32_t AAXExtEffectParameters::Initialize(IACFUnknown* host)
{
    return Guarded(
        [&]
        {
            if (controller)
            {
                return AAXResult::Failed;
            }
            controller = AAX_VController(host);
            if (!controller)
            {
                return AAXResult::Failed;
            }
            automation.Set(controller.GetAutomationDelegate());
            return EffectInit();
        });
}

std::int32_t AAXExtEffectParameters::Uninitialize()
{
    return Guarded(
        [&]
        {
            automation.Clear();
            controller = {};
            return AAXResult::Ok;
        });
}

std::int32_t AAXExtEffectParameters::GetParameterCount(std::int32_t* count)
{
    return Give(count, std::int32_t{parameters.GetCount()});
}

std::int32_t AAXExtEffectParameters::GetParameterId(std::int32_t index, const char** id)
{
    return index >= 0 && index < parameters.GetCount() ? Give(id, parameters[index].GetIdentifier().c_str())
                                                       : AAXResult::Failed;
}

std::int32_t AAXExtEffectParameters::GetParameterIndex(const char* id, std::int32_t* index)
{
    const int found = parameters.FindIndex(id);
    return found >= 0 ? Give(index, std::int32_t{found}) : AAXResult::Failed;
}

std::int32_t AAXExtEffectParameters::GetMasterBypassId(const char** id)
{
    return Give(id, GetMasterBypassIdentifier());
}

std::int32_t AAXExtEffectParameters::GetParameterName(const char* id, char* name, std::int32_t capacity)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter) {
                             return CopyToBuffer(parameter.GetName(), name, capacity) ? AAXResult::Ok
                                                                                      : AAXResult::Failed;
                         });
}

std::int32_t AAXExtEffectParameters::IsParameterContinuous(const char* id, std::int32_t* continuous)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter)
                         { return Give(continuous, std::int32_t{parameter.IsContinuous()}); });
}

std::int32_t AAXExtEffectParameters::GetParameterStepCount(const char* id, std::int32_t* steps)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter)
                         { return Give(steps, std::int32_t{parameter.GetStepCount()}); });
}

std::int32_t AAXExtEffectParameters::GetParameterRange(const char* id, double* min, double* max)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter)
                         {
                             const std::int32_t result =
                                 Give(min, static_cast<double>(parameter.GetTaper().ToPlain(0.0)));
                             return result != AAXResult::Ok
                                        ? result
                                        : Give(max, static_cast<double>(parameter.GetTaper().ToPlain(1.0)));
                         });
}

std::int32_t AAXExtEffectParameters::GetParameterDefault(const char* id, double* normalized)
{
    return WithParameter(
        parameters, id,
        [&](const CAAXPluginParameter& parameter)
        { return Give(normalized, parameter.GetTaper().ToNormalized(parameter.GetDefault())); });
}

std::int32_t AAXExtEffectParameters::GetParameterValue(const char* id, double* normalized)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter) {
                             return Give(normalized, parameter.GetTaper().ToNormalized(parameter.GetValue()));
                         });
}

std::int32_t AAXExtEffectParameters::SetParameterValue(const char* id, double normalized)
{
    return WithParameter(parameters, id,
                         [&](CAAXPluginParameter& parameter)
                         {
                             if (std::isnan(normalized))
                             {
                                 return AAXResult::Failed;
                             }
                             parameter.SetValue(parameter.GetTaper().ToPlain(normalized));
                             return AAXResult::Ok;
                         });
}

std::int32_t AAXExtEffectParameters::GetParameterText(const char* id, double normalized, char* text,
                                                      std::int32_t capacity)
{
    return WithParameter(
        parameters, id,
        [&](const CAAXPluginParameter& parameter)
        {
            AAX_CString made;
            parameter.GetDisplay().ValueToString(parameter.GetTaper().ToPlain(normalized), &made);
            return CopyToBuffer(made.Get(), text, capacity) ? AAXResult::Ok : AAXResult::Failed;
        });
}

std::int32_t AAXExtEffectParameters::GetValueOfText(const char* id, const char* text, double* normalized)
{
    return WithParameter(parameters, id,
                         [&](const CAAXPluginParameter& parameter)
                         {
                             float plain = 0.0F;
                             if (text == nullptr ||
                                 !parameter.GetDisplay().StringToValue(AAX_CString(text), &plain))
                             {
                                 return AAXResult::Failed;
                             }
                             return Give(normalized, parameter.GetTaper().ToNormalized(plain));
                         });
}

std::int32_t AAXExtEffectParameters::GetChunkCount(std::int32_t* count)
{
    return Give(count, std::int32_t{1});
}

std::int32_t AAXExtEffectParameters::GetChunkId(std::int32_t index, std::uint32_t* chunkId)
{
    return index == 0 ? Give(chunkId, ControlsChunkId) : AAXResult::Failed;
}

std::int32_t AAXExtEffectParameters::GetChunkSize(std::uint32_t chunkId, std::uint32_t* size)
{
    return Guarded(
        [&]
        {
            if (chunkId != ControlsChunkId)
            {
                const std::int32_t given = Give(size, std::uint32_t{0});
                return given == AAXResult::Ok ? AAXResult::UnknownChunk : given;
            }
            chunkParser.Clear();
            GatherControls(chunkParser);
            announcedSize = chunkParser.GetDataSize();
            return Give(size, static_cast<std::uint32_t>(announcedSize));
        });
}

std::int32_t AAXExtEffectParameters::GetChunk(std::uint32_t chunkId, SAAXChunk* chunk)
{
    return Guarded(
        [&]
        {
            if (chunk == nullptr)
            {
                return AAXResult::Failed;
            }
            return chunkId == ControlsChunkId ? GetControlsChunk(*chunk) : AAXResult::UnknownChunk;
        });
}

std::int32_t AAXExtEffectParameters::GetControlsChunk(SAAXChunk& chunk)
{
    chunkParser.Clear();
    GatherControls(chunkParser);
    const std::size_t size = chunkParser.GetDataSize();
    if (size != announcedSize || size == 0)
    {
        return AAXResult::WrongChunkSize;
    }
    chunk.size = static_cast<std::uint32_t>(size);
    chunk.version = chunkParser.GetVersion();
    chunk.chunkId = ControlsChunkId;
    SetChunkName(chunk, ControlsChunkName);
    chunkParser.Write(ChunkData(&chunk));
    return AAXResult::Ok;
}

std::int32_t AAXExtEffectParameters::SetChunk(std::uint32_t chunkId, const SAAXChunk* chunk)
{
    return Guarded(
        [&]
        {
            if (chunk == nullptr)
            {
                return AAXResult::Failed;
            }
            if (chunkId != ControlsChunkId)
            {
                return AAXResult::UnknownChunk;
            }
            chunkParser.Read(ChunkData(chunk), chunk->size, chunk->version);
            ApplyControls(chunkParser);
            return AAXResult::Ok;
        });
}

std::int32_t AAXExtEffectParameters::CompareActiveChunk(const SAAXChunk* chunk, std::int32_t* equal)
{
    return Guarded(
        [&]
        {
            if (chunk == nullptr || equal == nullptr)
            {
                return AAXResult::Failed;
            }
            *equal = 1;
            if (chunk->chunkId == ControlsChunkId)
            {
                AAXExtChunkDataParser compared;
                compared.Read(ChunkData(chunk), chunk->size, chunk->version);
                *equal = HasControls(compared) ? 1 : 0;
            }
            return AAXResult::Ok;
        });
}

std::int32_t AAXExtEffectParameters::GetCustomData(std::uint32_t, std::uint32_t, void*, std::uint32_t*)
{
    return AAXResult::Failed;
}

void AAXExtEffectParameters::AddParameter(std::unique_ptr<CAAXPluginParameter> parameter)
{
    parameter->SetAutomation(&automation);
    parameters.Add(std::move(parameter));
}

const char* AAXExtEffectParameters::GetMasterBypassIdentifier() const
{
    return "MasterBypassID";
}

std::int32_t AAXExtEffectParameters::EffectInit()
{
    parameters.BuildTable();
    return AAXResult::Ok;
}

void AAXExtEffectParameters::GatherControls(AAXExtChunkDataParser& parser) const
{
    for (int i = 0; i < parameters.GetCount(); ++i)
    {
        parser.AddFloat(parameters[i].GetIdentifier(), parameters[i].GetValue());
    }
}

void AAXExtEffectParameters::ApplyControls(const AAXExtChunkDataParser& parser)
{
    for (int i = 0; i < parameters.GetCount(); ++i)
    {
        double value = 0.0;
        if (parser.FindNumber(parameters[i].GetIdentifier(), value))
        {
            parameters[i].SetValue(static_cast<float>(value));
        }
    }
}

bool AAXExtEffectParameters::HasControls(const AAXExtChunkDataParser& parser) const
{
    for (int i = 0; i < parameters.GetCount(); ++i)
    {
        const float present = parameters[i].GetValue();
        double value = 0.0;
        if (!parser.FindNumber(parameters[i].GetIdentifier(), value) || static_cast<float>(value) != present)
        {
            return false;
        }
    }
    return true;
}

} // namespace MirelExt::AAXPlugin
