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
using CoreUtilities::CMessageKind;

namespace
{

constexpr float longestRefreshTimeMs = 1000000.0F;

/// Runs and destroys them, in order, all of them.
bool RunAll(std::vector<std::unique_ptr<CModelCommand>>& commands)
{
    bool succeeded = true;
    const auto running = std::exchange(commands, {});
    for (const auto& command : running)
    {
        succeeded = command->Execute() && succeeded;
    }
    return succeeded;
}

} // namespace

CModelBuild::CModelBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                         ISkinModel* parent_, std::shared_ptr<CSkinModelContext> context_)
    : parser(parser_),
      log(log_),
      model(model_),
      parent(parent_),
      context(std::move(context_))
{
}

const System::ITickSource& CModelBuild::GetTickSource() const
{
    const System::ITickSource* given = GetServices().tickSource;
    return given == nullptr ? System::CMonotonicTickSource::GetInstance() : *given;
}

bool CModelBuild::Fail(const std::string& message) const
{
    log.Post(CMessageKind::Error, message.c_str(), 0);
    return false;
}

void CModelBuild::Warn(const std::string& message) const
{
    log.Post(CMessageKind::Warning, message.c_str(), 0);
}

void CModelBuild::Inform(const char* message) const
{
    log.Post(CMessageKind::Info, message, 0);
}

void CModelBuild::Note(const char* id, const Containers::CNamedAttributes& attributes)
{
    if (IsTrue(attributes, "persistent"))
    {
        NotePersistent(id);
    }
    if (IsTrue(attributes, "exposed"))
    {
        NoteExposed(id);
    }
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
    return model.AddParam(name.c_str(),
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
    return model.AddParam(
        name.c_str(),
        new CCaptureParamWrapper(
            info, [&object] { return static_cast<float>(object.GetRefreshTime()); },
            [&object](float value)
            { object.SetRefreshTime(Core::TruncateToInt32(static_cast<double>(value) + 0.5)); },
            nullptr),
        flags, true);
}

bool CModelBuild::TakeElement()
{
    if (builtElements < maxModelElements)
    {
        ++builtElements;
        return true;
    }
    if (builtElements == maxModelElements)
    {
        ++builtElements;
        Fail("The model has too many elements: the rest is left out.");
    }
    return false;
}

bool CModelBuild::TakeElements(int count)
{
    if (!context->GetCollections()->TakeElements(count))
    {
        return false;
    }
    elements += count;
    return true;
}

bool CModelBuild::Finish()
{
    bool succeeded = AddToParent();
    Inform("Pre-Linking objects (managing dynamic collections)...");
    succeeded = RunAll(preLinks) && succeeded;
    Inform("Setting up collections count...");
    RunAll(counts);
    Inform("Linking objects...");
    succeeded = RunAll(links) && succeeded;
    Inform("Storing objects information...");
    MakePersistent(persistentIds);
    Expose(exposedIds);
    Inform("Cleaning...");
    Drop();
    model.GetEnable().Enable(true);
    return succeeded;
}

void CModelBuild::Drop()
{
    persistentIds.clear();
    exposedIds.clear();
    preLinks.clear();
    counts.clear();
    links.clear();
    openCollection = nullptr;
    builtElements = 0;
}

bool CModelBuild::AddToParent() const
{
    bool added = true;
    if (parent != nullptr)
    {
        const std::unique_ptr<ISkinDynamicObjectsIterator> entry(model.GetObjects().CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            added = parent->GetObjects().Add(entry->GetId(), &entry->GetObject(), false) && added;
        }
    }
    return added;
}

void CModelBuild::MakePersistent(const std::string& ids) const
{
    for (const std::string& id : SplitIdentifiers(ids))
    {
        if (!model.MakePersistent(id.c_str(), true) ||
            (parent != nullptr && !parent->MakePersistent(id.c_str(), true)))
        {
            Warn(id + ": cannot make object persistent (already persistent or unknown object).");
        }
    }
}

void CModelBuild::Expose(const std::string& ids) const
{
    for (const std::string& id : SplitIdentifiers(ids))
    {
        if (!model.Expose(id.c_str()))
        {
            Warn(id + ": cannot expose object (already exposed or unknown object).");
        }
    }
}

} // namespace Mirel::SkinEngine
