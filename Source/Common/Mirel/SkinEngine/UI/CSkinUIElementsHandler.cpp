#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"

#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Model/CDictionaryLogExchange.h"
#include "Mirel/SkinEngine/Model/CModelBuild.h"
#include "Mirel/SkinEngine/Model/CollectionMarks.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/ParserHandlers.h"
#include "Mirel/SkinEngine/UI/CUIBuild.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

constexpr const char* rootElement = "SKIN";

/// Whatever names an object does so in an attribute of such a name.
void MarkReferences(ISkinModelExposure& exposure, const CNamedAttributes& attributes)
{
    attributes.Visit(
        [&exposure](const std::string& name, const std::string& value)
        {
            if (name.ends_with("_id") || name.ends_with("response_curve"))
            {
                exposure.Use(value.c_str());
            }
        });
}

} // namespace

class CSkinUIElementsHandler::CImplementation
{
public:
    CImplementation(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, CGUISkinData& data_,
                    const SSkinUIServices& services_, ISkinRoot* root_,
                    const std::shared_ptr<CSkinModelContext>& context_)
        : parser(parser_),
          log(log_),
          data(data_),
          build(parser_, log_, data_, services_, root_, context_),
          modelBuild(parser_, log_, data_.GetModel(), &data_.GetWholeModel(), context_)
    {
    }

    bool PreParse(const char* path)
    {
        parser.ResetHandlers();
        RegisterMarks();
        preParsed = ParseFile(parser, path, rootElement, variables);
        DropItemMarks(parser);
        return preParsed;
    }

    bool Parse(const char* path, bool usePrePass)
    {
        const CDictionaryLogExchange wholeReports(data.GetWholeModel().GetObjects(), &log);
        const CDictionaryLogExchange reports(data.GetModel().GetObjects(), &log);
        log.Post(CMessageKind::Info, "Parsing the skin...", 0);
        if (!usePrePass)
        {
            build.GetExposure().Use("*");
        }
        else if (!preParsed && !PreParse(path))
        {
            return Fail();
        }
        parser.ResetHandlers();
        RegisterBuilders();
        const bool succeeded = ParseFile(parser, path, rootElement, variables);
        void* noContext = nullptr;
        const std::unique_ptr<IParsedTemplate> rest(parser.StopRecording(noContext));
        build.Drop();
        modelBuild.Drop();
        return succeeded || Fail();
    }

    void SetVariable(const char* name, const char* value) { variables.Set(name, value); }

    void StartItem(const SUIScope& scope)
    {
        RegisterBuilders();
        build.Push(scope);
    }

    bool EndItem()
    {
        const CDictionaryLogExchange wholeReports(data.GetWholeModel().GetObjects(), &log);
        return Finish();
    }

    int GetElements() const { return build.GetElements() + modelBuild.GetElements(); }

private:
    bool Fail() const
    {
        log.Post(CMessageKind::Error, "Fatal error: skin parsing failed", 0);
        return false;
    }

    void RegisterBuilders()
    {
        RegisterStart(parser, rootElement,
                      [this](const CNamedAttributes& attributes) { return StartRoot(attributes); });
        RegisterEnd(parser, rootElement, [this] { return EndRoot(); });
        for (const SUIElement& element : uiElements)
        {
            RegisterStart(parser, element.name,
                          [this, &element](const CNamedAttributes& attributes)
                          { return Start(element, attributes); });
            RegisterEnd(parser, element.name,
                        [this, &element]
                        {
                            build.Pop(element.name);
                            return true;
                        });
        }
        for (const SModelElement& element : modelElements)
        {
            RegisterStart(parser, element.name,
                          [this, &element](const CNamedAttributes& attributes)
                          { return StartOfModel(element, attributes); });
        }
        RegisterStart(parser, "COLLECTION",
                      [this](const CNamedAttributes& attributes)
                      { return BuildUICollectionStart(build, attributes); });
        RegisterStart(parser, "FOREACH",
                      [this](const CNamedAttributes& attributes)
                      { return BuildUIForEachStart(build, attributes); });
        RegisterEnd(parser, "COLLECTION", [this] { return BuildUICollectionEnd(build); });
        RegisterEnd(parser, "FOREACH", [this] { return BuildUICollectionEnd(build); });
    }

    bool Start(const SUIElement& element, const CNamedAttributes& attributes)
    {
        build.SetElement(element.name);
        return build.TakeElement() && element.build(build, attributes);
    }

    bool StartRoot(const CNamedAttributes& attributes)
    {
        build.SetElement(rootElement);
        return BuildSkinRoot(build, attributes);
    }

    /// The layout begins to follow changes when all is there.
    bool EndRoot()
    {
        preParsed = false;
        Layout::CBaseGroupLayoutCell* const group = build.GetScope().group;
        const bool succeeded = Finish();
        if (group != nullptr)
        {
            group->SetAutoUpdate(true);
        }
        return succeeded;
    }

    /// The skin's own links come when all that they can name is there.
    bool Finish()
    {
        const bool built = build.Finish();
        return (!std::exchange(hasModel, false) || modelBuild.Finish()) && built;
    }

    bool StartOfModel(const SModelElement& element, const CNamedAttributes& attributes)
    {
        hasModel = true;
        return modelBuild.TakeElement() && element.build(modelBuild, attributes) && data.TakeAllAdded();
    }

    void RegisterMarks()
    {
        const auto mark = [this](const CNamedAttributes& attributes)
        {
            MarkReferences(build.GetExposure(), attributes);
            return true;
        };
        RegisterStart(parser, rootElement, mark);
        for (const SUIElement& element : uiElements)
        {
            RegisterStart(parser, element.name, mark);
        }
        RegisterModelMarks(parser, build.GetExposure(), log);
    }

    CSkinParser& parser;
    CoreUtilities::IMessageLog& log;
    CGUISkinData& data;
    CUIBuild build;
    CModelBuild modelBuild; ///< Of the elements of models that stand in the skin.
    bool hasModel = false;
    CNamedAttributes variables;
    bool preParsed = false;
};

CSkinUIElementsHandler::CSkinUIElementsHandler(CSkinParser& parser_, CoreUtilities::IMessageLog& log_,
                                               CGUISkinData& data_, const SSkinUIServices& services_,
                                               ISkinRoot& root_)
    : implementation(std::make_unique<CImplementation>(
          parser_, log_, data_, services_, &root_,
          std::make_shared<CSkinModelContext>(data_.GetWholeModel().GetObjects(), services_.model)))
{
}

CSkinUIElementsHandler::CSkinUIElementsHandler(CSkinParser& parser_, CoreUtilities::IMessageLog& log_,
                                               CGUISkinData& data_, const SSkinUIServices& services_,
                                               const SUIScope& scope,
                                               const std::shared_ptr<CSkinModelContext>& context_)
    : implementation(std::make_unique<CImplementation>(parser_, log_, data_, services_, nullptr, context_))
{
    implementation->StartItem(scope);
}

CSkinUIElementsHandler::~CSkinUIElementsHandler() = default;

bool CSkinUIElementsHandler::PreParse(const char* path)
{
    return implementation->PreParse(path);
}

bool CSkinUIElementsHandler::Parse(const char* path, bool usePrePass)
{
    return implementation->Parse(path, usePrePass);
}

void CSkinUIElementsHandler::SetVariable(const char* name, const char* value)
{
    implementation->SetVariable(name, value);
}

bool CSkinUIElementsHandler::EndItem()
{
    return implementation->EndItem();
}

int CSkinUIElementsHandler::GetElements() const
{
    return implementation->GetElements();
}

} // namespace Mirel::SkinEngine
