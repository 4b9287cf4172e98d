#include "Mirel/SkinEngine/Model/CElementBuild.h"

namespace Mirel::SkinEngine
{

using CoreUtilities::CMessageKind;

CElementBuild::CElementBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                             ISkinModel& whole_, std::shared_ptr<CSkinModelContext> context_,
                             SElementLimit limit_)
    : parser(parser_),
      log(log_),
      model(model_),
      whole(whole_),
      context(std::move(context_)),
      limit(limit_)
{
}

bool CElementBuild::Fail(const std::string& message) const
{
    log.Post(CMessageKind::Error, message.c_str(), 0);
    return false;
}

void CElementBuild::Warn(const std::string& message) const
{
    log.Post(CMessageKind::Warning, message.c_str(), 0);
}

void CElementBuild::Inform(const char* message) const
{
    log.Post(CMessageKind::Info, message, 0);
}

void CElementBuild::Note(const char* id, const Containers::CNamedAttributes& attributes)
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

bool CElementBuild::TakeElement()
{
    if (builtElements < limit.count)
    {
        ++builtElements;
        return true;
    }
    if (builtElements == limit.count)
    {
        ++builtElements;
        Fail(limit.message);
    }
    return false;
}

bool CElementBuild::TakeElements(int count)
{
    if (!context->GetCollections()->TakeElements(count))
    {
        return false;
    }
    elements += count;
    return true;
}

bool CElementBuild::RunAll(CCommands& commands)
{
    bool succeeded = true;
    const CCommands running = std::exchange(commands, {});
    for (const auto& command : running)
    {
        succeeded = command->Execute() && succeeded;
    }
    return succeeded;
}

void CElementBuild::Publish(const CPublish& makePersistent, const CPublish& expose) const
{
    for (const std::string& id : SplitIdentifiers(persistentIds))
    {
        if (!makePersistent(id.c_str()))
        {
            Warn(id + ": cannot make object persistent (already persistent or unknown object).");
        }
    }
    for (const std::string& id : SplitIdentifiers(exposedIds))
    {
        if (!expose(id.c_str()))
        {
            Warn(id + ": cannot expose object (already exposed or unknown object).");
        }
    }
}

void CElementBuild::DropRest()
{
    persistentIds.clear();
    exposedIds.clear();
    preLinks.clear();
    counts.clear();
    openCollection = nullptr;
    builtElements = 0;
}

} // namespace Mirel::SkinEngine
