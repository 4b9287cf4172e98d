#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/Graphics/CImageElement.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/ConnectCommands.h"
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

class CSkinCollectionBase;

/// What the handlers of skin elements work with in the pass that builds: where the present element stands,
/// the objects that widgets name, and what is left to be done when all elements are there. GUI thread only.
class CUIBuild
{
public:
    /// Nothing is owned; all must outlive the build. The root is null for an item of a collection.
    CUIBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
             const SSkinUIServices& services_, ISkinRoot* root_, std::shared_ptr<CSkinModelContext> context_);

    CSkinParser& GetParser() const { return parser; }
    CGUISkinData& GetData() const { return data; }
    ISkinRoot* GetRoot() const { return root; }
    ISkinModelExposure& GetExposure() const { return data.GetWholeModel().GetExposure(); }
    const SSkinUIServices& GetServices() const { return services; }
    const std::shared_ptr<CSkinModelContext>& GetContext() const { return context; }

    /// For messages: the element that is being built.
    const std::string& GetElement() const { return element; }
    void SetElement(const char* name) { element = name; }

    void Fail(const std::string& message) const;
    void Warn(const std::string& message) const;
    void Inform(const char* message) const;

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

    // What is done at the end, in this order.
    void QueuePreLink(std::unique_ptr<CModelCommand> command) { preLinks.push_back(std::move(command)); }
    void QueueCount(std::unique_ptr<CModelCommand> command) { counts.push_back(std::move(command)); }

    /// Remembers an object that the element wants to be persistent or exposed.
    void Note(const char* id, const Containers::CNamedAttributes& attributes);

    /// One more element. False, with a report for the first, where there may be none.
    bool TakeElement();

    /// Charges what is kept for an item to what all collections may hold. False if that is too much.
    bool TakeElements(int count);
    int GetElements() const { return elements; }

    /// The end of the skin or item: what was left to be done.
    bool Finish();

    /// Forgets it.
    void Drop();

    CSkinCollectionBase* openCollection = nullptr; ///< Between start and end of its element.

private:
    struct SPending
    {
        std::string id;
        const char* kind;
        std::function<bool()> isConnected;
    };

    template <class R>
    R& GetRelay(const char* id, const char* kind, typename R::CSource& placeholder);
    void Publish() const;
    void ReportMissing(const std::string& id, const char* kind) const;
    Graphics::CSharedImage LoadImage(const std::string& path, const std::string& maskPath);

    CSkinParser& parser;
    CoreUtilities::IMessageLog& log;
    CGUISkinData& data;
    SSkinUIServices services;
    ISkinRoot* root;
    std::shared_ptr<CSkinModelContext> context;
    std::string element;
    std::vector<SUIScope> scopes;
    std::unordered_map<std::string, void*> relays; ///< By kind and identifier.
    std::vector<SPending> pending;
    std::vector<std::unique_ptr<CModelCommand>> preLinks;
    std::vector<std::unique_ptr<CModelCommand>> counts;
    std::vector<std::string> persistentIds;
    std::vector<std::string> exposedIds;
    int builtElements = 0;
    int elements = 0; ///< Charged.
};

} // namespace Mirel::SkinEngine
