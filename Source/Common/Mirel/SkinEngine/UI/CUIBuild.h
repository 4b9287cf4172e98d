#pragma once

#include "Mirel/Graphics/CImageElement.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CElementBuild.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/ISkinRoot.h"
#include "Mirel/SkinEngine/UI/SSkinUIServices.h"
#include "Mirel/SkinEngine/UI/SUIScope.h"
#include "Mirel/SkinEngine/UI/TRelayConnection.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Mirel::SkinEngine
{

/// What the handlers of skin elements work with: where the present element stands, and the objects that
/// widgets name. GUI thread only.
class CUIBuild : public CElementBuild
{
public:
    /// Nothing is owned; all must outlive the build. The root is null for an item of a collection.
    CUIBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
             const SSkinUIServices& services_, ISkinRoot* root_, std::shared_ptr<CSkinModelContext> context_);

    CGUISkinData& GetData() const { return data; }
    ISkinRoot* GetRoot() const { return root; }
    const SSkinUIServices& GetServices() const { return services; }

    /// For messages: the element that is being built.
    const std::string& GetElement() const { return element; }
    void SetElement(const char* name) { element = name; }

    // The element around the present one. There always is one; what stands in no root goes nowhere, which its
    // group, being null, tells.
    const SUIScope& GetScope() const { return scopes.back(); }
    void Push(SUIScope scope) { scopes.push_back(std::move(scope)); }

    /// Whether the present element stands in one of that name, however deep.
    bool IsInside(const char* name) const;

    /// Ends the innermost element if it has that name: an end may come without its start.
    void Pop(const char* name);

    // The objects that widgets name, each by a relay that lives as long as the skin. One that is not there
    // yet may come until the end; one that never comes is reported then. A null identifier names nothing.
    DataModel::Objects::ICaptureParam& GetParam(const char* id);
    const DataModel::Objects::IConstCaptureParam& GetConstParam(const char* id);
    const DataModel::Objects::IConstCaptureCurve& GetCurve(const char* id);
    const DataModel::Objects::IConstCaptureString& GetString(const char* id);
    const DataModel::Objects::IConstAction& GetAction(const char* id);
    const DataModel::Objects::IConstParamInfo& GetParamInfo(const char* id);

    /// The image of a file attribute joined of both parts, such as "image" and "_hover", with its masks. None
    /// if there is no such attribute and file, or, with a report, if the file cannot be read.
    std::unique_ptr<Graphics::CImageElement> ReadImage(const Containers::CNamedAttributes& attributes,
                                                       const std::string& name,
                                                       const std::string& suffix = "");

    /// The path of a file attribute; empty for none.
    std::string FindFile(const Containers::CNamedAttributes& attributes, const std::string& name,
                         const std::string& suffix = "");

    /// The end of the skin or item: what was left to be done.
    bool Finish();

    /// Forgets it.
    void Drop();

private:
    struct SPending
    {
        std::string id;
        const char* kind;
        std::function<bool()> isConnected;
    };

    template <class R>
    R& GetRelay(const char* id, const char* kind, typename R::CSource& placeholder);
    void ReportMissing(const std::string& id, const char* kind) const;
    Graphics::CSharedImage LoadImage(const std::string& path, const std::string& maskPath);

    CGUISkinData& data;
    SSkinUIServices services;
    ISkinRoot* root;
    std::string element;
    std::vector<SUIScope> scopes;
    std::unordered_map<std::string, void*> relays; ///< By kind and identifier.
    std::vector<SPending> pending;
};

} // namespace Mirel::SkinEngine
