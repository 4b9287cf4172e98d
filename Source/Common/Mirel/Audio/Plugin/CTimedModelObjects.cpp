#include "Mirel/Audio/Plugin/CTimedModelObjects.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"

namespace Mirel::Audio::Plugin
{

using namespace DataModel::Objects;
using namespace SkinEngine;

namespace
{

std::string PausedId(const std::string& id)
{
    return id + ".paused";
}

CParamInfo PausedInfo()
{
    return {ValueKindBoolean, 0.0f, 1.0f, 0.0f, "", "", "", new CEnumToText({"running", "paused"}), true};
}

} // namespace

int CTimedModelObjects::GetParamFlags(const std::string& id) const
{
    struct SSubObject
    {
        int flag;
        const char* suffix;
    };
    constexpr SSubObject subObjects[] = {{objectItself, ""},
                                         {objectInfo, ".info"},
                                         {paramDefault, ".default"},
                                         {paramMin, ".min"},
                                         {paramMax, ".max"}};
    int flags = wanted.GetParamFlags(id.c_str());
    for (const auto& [flag, suffix] : subObjects)
    {
        if ((flags & flag) != 0 && IsThere(id + suffix))
        {
            flags &= ~flag;
        }
    }
    return flags;
}

int CTimedModelObjects::GetStringFlags(const std::string& id) const
{
    return IsThere(id) ? 0 : wanted.GetStringOrActionFlags(id.c_str());
}

int CTimedModelObjects::GetCurveFlags(const std::string& id) const
{
    int flags = wanted.GetCurveFlags(id.c_str());
    if (IsThere(id))
    {
        flags &= ~objectItself;
    }
    if (IsThere(id + ".x_info"))
    {
        flags &= ~objectInfo;
    }
    return flags;
}

int CTimedModelObjects::WithPaused(const std::string& id, int flags) const
{
    const bool pausedWanted = GetParamFlags(PausedId(id)) != 0;
    return pausedWanted && !IsThere(id) ? flags | objectItself : flags;
}

bool CTimedModelObjects::AddPaused(const std::string& id)
{
    const std::string pausedId = PausedId(id);
    const int flags = GetParamFlags(pausedId);
    auto* timed = FindObject<Core::IEnable>(model.GetObjects(), id.c_str());
    if (flags == 0 || timed == nullptr)
    {
        return true;
    }
    auto paused = std::make_unique<CCaptureParamWrapper>(
        PausedInfo(), [timed] { return timed->IsEnabled() ? 0.0f : 1.0f; },
        [timed](float value) { timed->Enable(value < 0.5f); }, &timed->GetEnableChangedEventProvider());
    return model.AddParam(pausedId.c_str(), &Keep(std::move(paused)), flags, false);
}

} // namespace Mirel::Audio::Plugin
