#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Model/CDictionaryLogExchange.h"
#include "Mirel/SkinEngine/Model/CModelBuild.h"
#include "Mirel/SkinEngine/Model/CollectionMarks.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/ParserHandlers.h"

#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

constexpr const char* rootElement = "MODEL";

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
        preParsed = ParseFile(parser, path, rootElement, variables);
        DropItemMarks(parser);
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
        const bool succeeded = ParseFile(parser, path, rootElement, variables);
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
        RegisterModelMarks(parser, build.GetModel().GetExposure(), log);
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
