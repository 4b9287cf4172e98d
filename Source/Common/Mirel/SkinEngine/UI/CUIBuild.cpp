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

namespace
{

std::string TakeText(char* text)
{
    const std::unique_ptr<char[]> owned(text);
    return owned == nullptr ? std::string() : std::string(owned.get());
}

} // namespace

CUIBuild::CUIBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
                   const SSkinUIServices& services_, ISkinRoot* root_,
                   std::shared_ptr<CSkinModelContext> context_)
    : CElementBuild(parser_, log_, data_.GetModel(), data_.GetWholeModel(), std::move(context_),
                    {maxSkinElements, "The skin has too many elements: the rest is left out."}),
      data(data_),
      services(services_),
      root(root_),
      scopes(1)
{
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
        CConnection& connection =
            data.Own(std::make_unique<CConnection>(GetContext(), name.c_str(), placeholder));
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
    return GetRelay<CParamRelay>(id, "param", GetWholeModel().GetParamNotFound());
}

const IConstCaptureParam& CUIBuild::GetConstParam(const char* id)
{
    return GetRelay<CConstParamRelay>(id, "param", GetWholeModel().GetParamNotFound());
}

const IConstCaptureCurve& CUIBuild::GetCurve(const char* id)
{
    return GetRelay<CConstCurveRelay>(id, "curve", GetWholeModel().GetCurveNotFound());
}

const IConstCaptureString& CUIBuild::GetString(const char* id)
{
    return GetRelay<CConstStringRelay>(id, "string", GetWholeModel().GetStringNotFound());
}

const IConstAction& CUIBuild::GetAction(const char* id)
{
    return GetRelay<CActionRelay>(id, "action", GetWholeModel().GetActionNotFound());
}

const IConstParamInfo& CUIBuild::GetParamInfo(const char* id)
{
    return GetRelay<CParamInfoRelay>(id, "parameter info", GetWholeModel().GetParamNotFound().GetInfo());
}

std::string CUIBuild::FindFile(const CNamedAttributes& attributes, const std::string& name,
                               const std::string& suffix)
{
    std::vector<std::string> pieces{name};
    if (!suffix.empty())
    {
        pieces.push_back(suffix);
    }
    return TakeText(GetParser().GetFileAttribute(attributes, pieces));
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
    const std::string maskPath = TakeText(GetParser().GetFileAttribute(attributes, pieces, {"_mask"}));
    const std::string mousePath = TakeText(GetParser().GetFileAttribute(attributes, pieces, {"_mouse"}));
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

bool CUIBuild::Finish()
{
    Inform("Building widgets...");
    const bool succeeded = RunPreLinks();
    RunCounts();
    for (const SPending& each : std::exchange(pending, {}))
    {
        if (!each.isConnected())
        {
            ReportMissing(each.id, each.kind);
        }
    }
    Publish([this](const char* id) { return GetWholeModel().MakePersistent(id, true); },
            [this](const char* id) { return GetWholeModel().Expose(id); });
    Drop();
    return succeeded;
}

void CUIBuild::ReportMissing(const std::string& id, const char* kind) const
{
    const bool exists = GetContext()->GetDictionary().Find(id.c_str()) != nullptr;
    Warn(exists ? id + ": Unknown " + kind + " identifier (wrong object type)."
                : id + ": Unknown identifier (object does not exist).");
}

void CUIBuild::Drop()
{
    DropRest();
    scopes.resize(1);
    relays.clear();
    pending.clear();
}

} // namespace Mirel::SkinEngine
