#include "SkinCheck/CheckSkin.h"

#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

namespace SkinCheck
{

using namespace Mirel::SkinEngine;

namespace
{

/// Takes messages and forgets them.
class CNoLog : public Mirel::CoreUtilities::IMessageLog
{
public:
    void Post(int, const char*, int) override {}
};

/// Keeps what is worth knowing of a walk without handlers, to which every element is unknown.
class CWalkLog : public Mirel::CoreUtilities::IMessageLog
{
public:
    explicit CWalkLog(CCheckLog& log_) : log(log_) {}

    void Post(int kind, const char* text, int verbosity) override
    {
        if (kind != Mirel::CoreUtilities::CMessageKind::Info)
        {
            log.Post(kind, text, verbosity);
        }
    }

private:
    CCheckLog& log;
};

void SetVariables(const SCheckOptions& options, CSkinParser& parser)
{
    for (const auto& [name, value] : options.variables)
    {
        parser.SetVariable(name.c_str(), value.c_str());
    }
}

std::string FindRoot(const SCheckOptions& options)
{
    CNoLog log;
    CSkinParser parser(log);
    CElementPrinter elements;
    parser.SetElementListener(&elements);
    SetVariables(options, parser);
    parser.ParseFile(options.path.c_str());
    return elements.GetElements().empty() ? "" : elements.GetElements().front().name;
}

void WalkSkin(const SCheckOptions& options, SCheckResult& result)
{
    CWalkLog log(result.log);
    CSkinParser parser(log);
    CElementPrinter elements;
    result.log.SetParser(&parser);
    parser.SetElementListener(&elements);
    parser.SetRootElement("SKIN");
    SetVariables(options, parser);
    parser.ParseFile(options.path.c_str());
    result.log.SetParser(nullptr);
    result.elements = elements.GetElements();
}

void BuildModel(const SCheckOptions& options, SCheckResult& result)
{
    CSkinParser parser(result.log);
    CElementPrinter elements;
    result.log.SetParser(&parser);
    CSkinModel model(&result.log);
    CSkinModelFactory factory(parser, result.log, model);
    for (const auto& [name, value] : options.variables)
    {
        factory.SetVariable(name.c_str(), value.c_str());
    }
    parser.SetElementListener(&elements);
    // After a pre-pass of its own everything is built, as in the product.
    if (options.onlyMarked || factory.PreParse(options.path.c_str()))
    {
        factory.Parse(options.path.c_str(), true);
    }
    parser.SetElementListener(nullptr);
    result.log.SetParser(nullptr);
    model.GetObjects().SetLog(nullptr);
    result.elements = elements.GetElements();
    result.objects = DescribeObjects(model);
    Mirel::Serialization::CXmlDataObject document("model");
    if (model.Serialize(document))
    {
        document.SaveToText(result.state);
    }
}

} // namespace

void CheckSkin(const SCheckOptions& options, SCheckResult& result)
{
    result.root = FindRoot(options);
    if (result.root == "SKIN")
    {
        WalkSkin(options, result);
    }
    else
    {
        BuildModel(options, result);
    }
}

} // namespace SkinCheck
