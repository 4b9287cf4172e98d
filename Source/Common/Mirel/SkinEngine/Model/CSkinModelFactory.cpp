#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"
#include "Mirel/SkinEngine/Model/CDictionaryLogExchange.h"
#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/CModelBuild.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

constexpr const char* rootElement = "MODEL";

/// Handlers made from a callable.
template <class F>
class TStartCommand : public CSkinParser::CStartCommand
{
public:
    explicit TStartCommand(F handle_) : handle(std::move(handle_)) {}
    bool Execute(const CNamedAttributes& attributes) override { return handle(attributes); }

private:
    F handle;
};

template <class F>
class TEndCommand : public CSkinParser::CEndCommand
{
public:
    explicit TEndCommand(F handle_) : handle(std::move(handle_)) {}
    bool Execute() override { return handle(); }

private:
    F handle;
};

template <class F>
void RegisterStart(CSkinParser& parser, const char* name, F handle)
{
    parser.RegisterStartHandler(name, new TStartCommand<F>(std::move(handle)));
}

template <class F>
void RegisterEnd(CSkinParser& parser, const char* name, F handle)
{
    parser.RegisterEndHandler(name, new TEndCommand<F>(std::move(handle)));
}

/// The body of a collection as it stands for all its items, so that what these refer to is marked.
CNamedAttributes ItemPatterns(const CNamedAttributes& collection)
{
    const char* itemName = GetText(collection, "item_name", CSkinCollectionBase::defaultItemName);
    CNamedAttributes patterns;
    patterns.Set(itemName, GetItemText(GetText(collection, "id"), -1).c_str());
    for (const std::string& source : SplitIdentifiers(GetText(collection, "collection_id")))
    {
        patterns.Set(GetSourceItemName(source.c_str(), itemName).c_str(),
                     GetItemText(source.c_str(), -1).c_str());
    }
    return patterns;
}

/// Ends a recording whose context is a set of attributes. Null if none was running.
std::unique_ptr<IParsedTemplate> StopMarkRecording(CSkinParser& parser,
                                                   std::unique_ptr<CNamedAttributes>& attributes)
{
    void* recorded = nullptr;
    std::unique_ptr<IParsedTemplate> body(parser.StopRecording(recorded));
    attributes.reset(static_cast<CNamedAttributes*>(recorded));
    return body;
}

} // namespace

class CSkinModelFactory::CImplementation
{
public:
    CImplementation(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                    ISkinModel* parent_, std::shared_ptr<CSkinModelContext> context_)
        : parser(parser_),
          log(log_),
          build(parser_, log_, model_, parent_, std::move(context_))
    {
    }

    bool PreParse(const char* path)
    {
        log.Post(CMessageKind::Info, "Pre-Parsing the model...", 0);
        parser.ResetHandlers();
        RegisterMarks();
        preParsed = ParseFile(path);
        // A file that breaks off inside a collection leaves its recording behind.
        std::unique_ptr<CNamedAttributes> attributes;
        StopMarkRecording(parser, attributes);
        return preParsed;
    }

    bool Parse(const char* path, bool usePrePass)
    {
        const CDictionaryLogExchange reports(build.GetModel().GetObjects(), &log);
        if (usePrePass && !preParsed)
        {
            if (!PreParse(path))
            {
                return Fail();
            }
        }
        else
        {
            build.GetModel().GetExposure().Use("*");
        }
        log.Post(CMessageKind::Info, "Parsing the model...", 0);
        parser.ResetHandlers();
        RegisterBuilders();
        const bool succeeded = ParseFile(path);
        void* noContext = nullptr;
        const std::unique_ptr<IParsedTemplate> rest(parser.StopRecording(noContext));
        build.Drop();
        return succeeded || Fail();
    }

    void SetVariable(const char* name, const char* value) { variables.Set(name, value); }

    bool StartModel(const CNamedAttributes& attributes)
    {
        RegisterBuilders();
        return BuildModelStart(build, attributes);
    }

    bool EndModel() { return build.Finish(); }

    int GetElements() const { return build.GetElements(); }

private:
    bool Fail() const
    {
        log.Post(CMessageKind::Error, "Fatal error: model parsing failed", 0);
        return false;
    }

    bool ParseFile(const char* path)
    {
        parser.SetRootElement(rootElement);
        const std::unique_ptr<Containers::INamedAttributesConstIterator> variable(
            std::as_const(variables).CreateIterator());
        for (; variable->IsValid(); variable->Next())
        {
            parser.SetVariable(variable->GetName(), variable->GetValue());
        }
        return parser.ParseFile(path);
    }

    void RegisterBuilders()
    {
        RegisterStart(parser, rootElement,
                      [this](const CNamedAttributes& attributes)
                      { return BuildModelStart(build, attributes); });
        RegisterEnd(parser, rootElement,
                    [this]
                    {
                        preParsed = false;
                        return build.Finish();
                    });
        for (const SModelElement& element : modelElements)
        {
            RegisterStart(parser, element.name,
                          [this, handle = element.build](const CNamedAttributes& attributes)
                          { return build.TakeElement() && handle(build, attributes); });
        }
        RegisterStart(parser, "COLLECTION",
                      [this](const CNamedAttributes& attributes)
                      { return BuildCollectionStart(build, attributes); });
        RegisterStart(parser, "FOREACH",
                      [this](const CNamedAttributes& attributes)
                      { return BuildForEachStart(build, attributes); });
        RegisterEnd(parser, "COLLECTION", [this] { return BuildCollectionEnd(build); });
        RegisterEnd(parser, "FOREACH", [this] { return BuildCollectionEnd(build); });
    }

    void RegisterMarks()
    {
        RegisterStart(parser, rootElement, [](const CNamedAttributes&) { return true; });
        for (const SModelElement& element : modelElements)
        {
            RegisterStart(parser, element.name,
                          [this, mark = element.mark](const CNamedAttributes& attributes)
                          { return mark(GetMarks(), attributes); });
        }
        for (const char* name : {"COLLECTION", "FOREACH"})
        {
            RegisterStart(parser, name,
                          [this](const CNamedAttributes& attributes)
                          {
                              parser.StartRecording(new CNamedAttributes(attributes));
                              return true;
                          });
            RegisterEnd(parser, name, [this] { return MarkCollectionEnd(); });
        }
    }

    SModelMarks GetMarks() const
    {
        const char* element = parser.GetCurrentElementName();
        return {build.GetModel().GetExposure(), log, element == nullptr ? "" : element};
    }

    bool MarkCollectionEnd()
    {
        std::unique_ptr<CNamedAttributes> attributes;
        const std::unique_ptr<IParsedTemplate> body = StopMarkRecording(parser, attributes);
        if (body != nullptr && attributes != nullptr)
        {
            delete body->Instantiate(ItemPatterns(*attributes), parser);
        }
        return true;
    }

    CSkinParser& parser;
    CoreUtilities::IMessageLog& log;
    CModelBuild build;
    CNamedAttributes variables;
    bool preParsed = false;
};

CSkinModelFactory::CSkinModelFactory(CSkinParser& parser_, CoreUtilities::IMessageLog& log_,
                                     ISkinModel& model_, const SSkinModelServices& services_)
    : implementation(std::make_unique<CImplementation>(
          parser_, log_, model_, nullptr,
          std::make_shared<CSkinModelContext>(model_.GetObjects(), services_)))
{
}

CSkinModelFactory::CSkinModelFactory(CSkinParser& parser_, CoreUtilities::IMessageLog& log_,
                                     ISkinModel& model_, ISkinModel& parent_,
                                     std::shared_ptr<CSkinModelContext> context_)
    : implementation(std::make_unique<CImplementation>(parser_, log_, model_, &parent_, std::move(context_)))
{
}

CSkinModelFactory::~CSkinModelFactory() = default;

bool CSkinModelFactory::PreParse(const char* path)
{
    return implementation->PreParse(path);
}

bool CSkinModelFactory::Parse(const char* path, bool usePrePass)
{
    return implementation->Parse(path, usePrePass);
}

void CSkinModelFactory::SetVariable(const char* name, const char* value)
{
    implementation->SetVariable(name, value);
}

bool CSkinModelFactory::StartModel(const CNamedAttributes& attributes)
{
    return implementation->StartModel(attributes);
}

bool CSkinModelFactory::EndModel()
{
    return implementation->EndModel();
}

int CSkinModelFactory::GetElements() const
{
    return implementation->GetElements();
}

} // namespace Mirel::SkinEngine
