#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

constexpr int noRefreshTime = -1;

/// `<id>_refresh_time` for what is in the model already, or `refresh_time_ms` for all of it.
void SetRefreshTimes(CModelBuild& build, const CNamedAttributes& attributes)
{
    int forAll = noRefreshTime;
    ReadNumber(attributes, "refresh_time_ms", forAll);
    const std::unique_ptr<ISkinDynamicObjectsIterator> entry(build.GetModel().GetObjects().CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        auto* object = FindInterface<Core::IRefreshTime>(entry->GetObject());
        if (object == nullptr)
        {
            continue;
        }
        int own = noRefreshTime;
        ReadNumber(attributes, std::string(entry->GetId()) + "_refresh_time", own);
        const int milliseconds = own == noRefreshTime ? forAll : own;
        if (milliseconds > 0)
        {
            object->SetRefreshTime(milliseconds);
        }
    }
}

bool AddAlive(CModelBuild& build)
{
    const int flags = build.GetExposure().GetParamFlags("alive");
    if (flags == 0)
    {
        return true;
    }
    const Core::IConstEnable& alive = build.GetModel().GetEnable();
    const CParamInfo info(ValueKindInteger, 0.0F, 1.0F, 0.0F, "Alive", "", "",
                          new CEnumToText({"asleep", "alive"}), true);
    return build.GetModel().AddConstParam("alive",
                                          new CConstCaptureParamWrapper(
                                              info, [&alive] { return alive.IsEnabled() ? 1.0F : 0.0F; },
                                              &alive.GetEnableChangedEventProvider()),
                                          flags, true);
}

} // namespace

bool BuildModelStart(CModelBuild& build, const CNamedAttributes& attributes)
{
    SetRefreshTimes(build, attributes);
    build.GetModel().SetId(GetText(attributes, "id"));
    return build.GetParent() != nullptr || AddAlive(build);
}

} // namespace Mirel::SkinEngine
