#include "Mirel/SkinEngine/UI/CUIBuild.h"

#include "Mirel/SkinEngine/Model/ModelAttributes.h"
#include "Mirel/SkinEngine/UI/Limits.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

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

std::string TakeText(char* text)
{
    const std::unique_ptr<char[]> owned(text);
    return owned == nullptr ? std::string() : std::string(owned.get());
}

} // namespace

CUIBuild::CUIBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
                   const SSkinUIServices& services_, ISkinRoot* root_,
                   std::shared_ptr<CSkinModelContext> context_)
    : parser(parser_),
      log(log_),
      data(data_),
      services(services_),
      root(root_),
      context(std::move(context_)),
      scopes(1)
{
}

void CUIBuild::Fail(const std::string& message) const
{
    log.Post(CMessageKind::Error, message.c_str(), 0);
}

void CUIBuild::Warn(const std::string& message) const
{
    log.Post(CMessageKind::Warning, message.c_str(), 0);
}

void CUIBuild::Inform(const char* message) const
{
    log.Post(CMessageKind::Info, message, 0);
}

bool CUIBuild::IsInside(const char* name) const
{
    return std::any_of(scopes.begin(), scopes.end(),
                       [name](const SUIScope& scope) { return scope.element == name; });
}

void CUIBuild::Pop(const char* name)
{
    if (scopes.size() > 1 && scopes.back().element == name)
    {
        scopes.pop_back();
    }
}

template <class R>
R& CUIBuild::GetRelay(const char* id, const char* kind, typename R::CSource& placeholder)
{
    using CConnection = TRelayConnection<R>;
    const std::string name = id == nullptr ? "" : id;
    // Readers and writers of one parameter have relays of different classes.
    void*& known = relays[std::string(typeid(R).name()) + ' ' + name];
    if (known == nullptr)
    {
        CConnection& connection = data.Own(std::make_unique<CConnection>(context, name.c_str(), placeholder));
        known = &connection.GetRelay();
        if (id != nullptr && !connection.IsConnected())
        {
            pending.push_back({name, kind, [&connection] { return connection.IsConnected(); }});
        }
    }
    return *static_cast<R*>(known);
}

ICaptureParam& CUIBuild::GetParam(const char* id)
{
    return GetRelay<CParamRelay>(id, "param", data.GetWholeModel().GetParamNotFound());
}

const IConstCaptureParam& CUIBuild::GetConstParam(const char* id)
{
    return GetRelay<CConstParamRelay>(id, "param", data.GetWholeModel().GetParamNotFound());
}

const IConstCaptureCurve& CUIBuild::GetCurve(const char* id)
{
    return GetRelay<CConstCurveRelay>(id, "curve", data.GetWholeModel().GetCurveNotFound());
}

const IConstCaptureString& CUIBuild::GetString(const char* id)
{
    return GetRelay<CConstStringRelay>(id, "string", data.GetWholeModel().GetStringNotFound());
}

const IConstAction& CUIBuild::GetAction(const char* id)
{
    return GetRelay<CActionRelay>(id, "action", data.GetWholeModel().GetActionNotFound());
}

const IConstParamInfo& CUIBuild::GetParamInfo(const char* id)
{
    return GetRelay<CParamInfoRelay>(id, "parameter info", data.GetWholeModel().GetParamNotFound().GetInfo());
}

std::string CUIBuild::FindFile(const CNamedAttributes& attributes, const std::string& name,
                               const std::string& suffix)
{
    std::vector<std::string> pieces{name};
    if (!suffix.empty())
    {
        pieces.push_back(suffix);
    }
    return TakeText(parser.GetFileAttribute(attributes, pieces));
}

Graphics::CSharedImage CUIBuild::LoadImage(const std::string& path, const std::string& maskPath)
{
    bool hasAlpha = false;
    std::string reason;
    Graphics::CSharedImage image =
        maskPath.empty()
            ? services.images.GetImage(path.c_str(), hasAlpha, &reason)
            : services.images.GetImageWithMask(path.c_str(), maskPath.c_str(), hasAlpha, &reason);
    if (!reason.empty())
    {
        Warn(reason);
    }
    return image;
}

std::unique_ptr<Graphics::CImageElement>
CUIBuild::ReadImage(const CNamedAttributes& attributes, const std::string& name, const std::string& suffix)
{
    const std::string path = FindFile(attributes, name, suffix);
    if (path.empty())
    {
        return nullptr;
    }
    std::vector<std::string> pieces{name};
    if (!suffix.empty())
    {
        pieces.push_back(suffix);
    }
    const std::string maskPath = TakeText(parser.GetFileAttribute(attributes, pieces, {"_mask"}));
    const std::string mousePath = TakeText(parser.GetFileAttribute(attributes, pieces, {"_mouse"}));
    Graphics::CSharedImage image = LoadImage(path, maskPath);
    if (image == nullptr)
    {
        return nullptr;
    }
    Graphics::CSharedImage mouseMask;
    if (!mousePath.empty())
    {
        std::string reason;
        mouseMask = services.images.GetAlphaImage(mousePath.c_str(), &reason);
        if (!reason.empty())
        {
            Warn(reason);
        }
    }
    return std::make_unique<Graphics::CNormalImageElement>(std::move(image), std::move(mouseMask));
}

void CUIBuild::Note(const char* id, const CNamedAttributes& attributes)
{
    if (IsTrue(attributes, "persistent"))
    {
        persistentIds.emplace_back(id);
    }
    if (IsTrue(attributes, "exposed"))
    {
        exposedIds.emplace_back(id);
    }
}

bool CUIBuild::TakeElement()
{
    if (builtElements < maxSkinElements)
    {
        ++builtElements;
        return true;
    }
    if (builtElements == maxSkinElements)
    {
        ++builtElements;
        Fail("The skin has too many elements: the rest is left out.");
    }
    return false;
}

bool CUIBuild::TakeElements(int count)
{
    if (!context->GetCollections()->TakeElements(count))
    {
        return false;
    }
    elements += count;
    return true;
}

bool CUIBuild::Finish()
{
    Inform("Building widgets...");
    const bool succeeded = RunAll(preLinks);
    RunAll(counts);
    for (const SPending& each : std::exchange(pending, {}))
    {
        if (!each.isConnected())
        {
            ReportMissing(each.id, each.kind);
        }
    }
    Publish();
    Drop();
    return succeeded;
}

void CUIBuild::Publish() const
{
    ISkinModel& whole = data.GetWholeModel();
    for (const std::string& id : persistentIds)
    {
        if (!whole.MakePersistent(id.c_str(), true))
        {
            Warn(id + ": cannot make object persistent (already persistent or unknown object).");
        }
    }
    for (const std::string& id : exposedIds)
    {
        if (!whole.Expose(id.c_str()))
        {
            Warn(id + ": cannot expose object (already exposed or unknown object).");
        }
    }
}

void CUIBuild::ReportMissing(const std::string& id, const char* kind) const
{
    const bool exists = context->GetDictionary().Find(id.c_str()) != nullptr;
    Warn(exists ? id + ": Unknown " + kind + " identifier (wrong object type)."
                : id + ": Unknown identifier (object does not exist).");
}

void CUIBuild::Drop()
{
    scopes.resize(1);
    relays.clear();
    pending.clear();
    preLinks.clear();
    counts.clear();
    persistentIds.clear();
    exposedIds.clear();
    openCollection = nullptr;
    builtElements = 0;
}

} // namespace Mirel::SkinEngine
