#include "Mirel/SkinEngine/Model/CModelBuild.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/ModelLimits.h"
#include "Mirel/System/CMonotonicTickSource.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

namespace
{

constexpr float longestRefreshTimeMs = 1000000.0F;

} // namespace

CModelBuild::CModelBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                         ISkinModel* parent_, std::shared_ptr<CSkinModelContext> context_)
    : CElementBuild(parser_, log_, model_, parent_ == nullptr ? model_ : *parent_, std::move(context_),
                    {maxModelElements, "The model has too many elements: the rest is left out."}),
      parent(parent_)
{
}

const System::ITickSource& CModelBuild::GetTickSource() const
{
    const System::ITickSource* given = GetServices().tickSource;
    return given == nullptr ? System::CMonotonicTickSource::GetInstance() : *given;
}

bool CModelBuild::AddSwitch(const char* id, const SSwitch& shown, std::function<bool()> get,
                            std::function<void(bool)> set, Core::IEventProvider& changed)
{
    if (*id == '\0')
    {
        return true;
    }
    const std::string name = std::string(id) + shown.suffix;
    const int flags = GetExposure().GetParamFlags(name.c_str());
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, 0.0F, 1.0F, get() ? 1.0F : 0.0F, shown.title, "", "",
                          new CEnumToText(SplitText(shown.names)), true);
    return GetModel().AddParam(name.c_str(),
                               new CCaptureParamWrapper(
                                   info, [get = std::move(get)] { return get() ? 1.0F : 0.0F; },
                                   [set = std::move(set)](float value) { set(value >= 0.5F); }, &changed),
                               flags, true);
}

bool CModelBuild::AddEnabledSwitch(const char* id, Core::IEnable& object)
{
    return AddSwitch(
        id, {".enabled", "disabled;enabled", "Enabled"}, [&object] { return object.IsEnabled(); },
        [&object](bool on) { object.Enable(on); }, object.GetEnableChangedEventProvider());
}

bool CModelBuild::AddPausedSwitch(const char* id, Core::IEnable& object)
{
    return AddSwitch(
        id, {".paused", "running;paused", "Paused"}, [&object] { return !object.IsEnabled(); },
        [&object](bool on) { object.Enable(!on); }, object.GetEnableChangedEventProvider());
}

bool CModelBuild::AddRefreshTime(const char* id, Core::IRefreshTime& object)
{
    const std::string name = std::string(id) + ".refresh_time_ms";
    const int flags = *id == '\0' ? 0 : GetExposure().GetParamFlags(name.c_str());
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, 0.0F, longestRefreshTimeMs,
                          static_cast<float>(object.GetRefreshTime()), "Refresh Time", "ms", "");
    return GetModel().AddParam(
        name.c_str(),
        new CCaptureParamWrapper(
            info, [&object] { return static_cast<float>(object.GetRefreshTime()); },
            [&object](float value)
            { object.SetRefreshTime(Core::TruncateToInt32(static_cast<double>(value) + 0.5)); },
            nullptr),
        flags, true);
}

bool CModelBuild::Finish()
{
    bool succeeded = AddToParent();
    Inform("Pre-Linking objects (managing dynamic collections)...");
    succeeded = RunPreLinks() && succeeded;
    Inform("Setting up collections count...");
    RunCounts();
    Inform("Linking objects...");
    succeeded = RunAll(links) && succeeded;
    Inform("Storing objects information...");
    Publish(
        [this](const char* id) {
            return GetModel().MakePersistent(id, true) &&
                   (parent == nullptr || parent->MakePersistent(id, true));
        },
        [this](const char* id) { return GetModel().Expose(id); });
    Inform("Cleaning...");
    Drop();
    GetModel().GetEnable().Enable(true);
    return succeeded;
}

void CModelBuild::Drop()
{
    DropRest();
    links.clear();
}

bool CModelBuild::AddToParent() const
{
    bool added = true;
    if (parent != nullptr)
    {
        const std::unique_ptr<ISkinDynamicObjectsIterator> entry(GetModel().GetObjects().CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            // A skin's own objects stand there from their beginning.
            const bool known = parent->GetObjects().Find(entry->GetId()) == &entry->GetObject();
            added = (known || parent->GetObjects().Add(entry->GetId(), &entry->GetObject(), false)) && added;
        }
    }
    return added;
}

} // namespace Mirel::SkinEngine
