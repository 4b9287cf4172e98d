#include "SkinCheck/CheckSkin.h"

#include "Mirel/Audio/Plugin/PluginVariables.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "SkinCheck/BuildSkin.h"
#include "SkinCheck/CPluginObjects.h"
#include "SkinCheck/SetAll.h"

#include <memory>

namespace SkinCheck
{

using Mirel::Audio::Plugin::DescribePlugin;
using namespace Mirel::SkinEngine;

namespace
{

/// Takes messages and forgets them.
class CNoLog : public Mirel::CoreUtilities::IMessageLog
{
public:
    void Post(int, const char*, int) override {}
};

std::string FindRoot(const SCheckOptions& options)
{
    CNoLog log;
    CSkinParser parser(log);
    CElementPrinter elements;
    parser.SetElementListener(&elements);
    SetAll(parser, options.variables);
    parser.ParseFile(options.path.c_str());
    return elements.GetElements().empty() ? "" : elements.GetElements().front().name;
}

void BuildModel(const SCheckOptions& options, SCheckResult& result)
{
    CSkinParser parser(result.log);
    CElementPrinter elements;
    result.log.SetParser(&parser);
    const auto plugin = options.plugin ? std::make_unique<CPluginObjects>() : nullptr;
    CSkinModel model(&result.log);
    CSkinModelFactory factory(parser, result.log, model);
    if (plugin != nullptr)
    {
        SetAll(factory, DescribePlugin(plugin->GetBindings()));
    }
    SetAll(factory, options.variables);
    parser.SetElementListener(&elements);
    // After a pre-pass of its own everything is built, as in the product.
    if (options.onlyMarked || factory.PreParse(options.path.c_str()))
    {
        if (plugin != nullptr)
        {
            plugin->AddTo(model);
        }
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
        BuildSkin(options, result);
    }
    else
    {
        BuildModel(options, result);
    }
}

} // namespace SkinCheck
