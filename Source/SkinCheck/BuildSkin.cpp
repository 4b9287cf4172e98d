#include "SkinCheck/BuildSkin.h"

#include "Mirel/Audio/Plugin/PluginVariables.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/CGraphicResourcesManager.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CExposedProperties.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"
#include "SkinCheck/CPluginObjects.h"
#include "SkinCheck/SetAll.h"

namespace SkinCheck
{

using namespace Mirel;
using namespace Mirel::SkinEngine;

namespace
{

/// The actions that the editor offers.
constexpr const char* actionNames[] = {"OpenMenu",       "OpenPresetMenu", "LoadPreviousPreset",
                                       "LoadNextPreset", "DisplayAbout",   "OpenManual",
                                       "OpenWebsite",    "Undo",           "Redo",
                                       "LoadPreset",     "SavePreset",     "ResetPresetMIDISettings"};

/// A window that nobody sees, for the time of a check.
class CUnseenWindow : public ISkinRoot
{
public:
    SSkinPlace OpenRoot(SSkinRootAttributes attributes) override
    {
        root = std::move(attributes);
        if (root.lightMode && !root.systemWidget)
        {
            return {&light, &window, &light.GetCell()};
        }
        return {nullptr, &window, &window.GetCell()};
    }

private:
    SSkinRootAttributes root;
    GUI::CWidget window;
    GUI::CLightWidget light;
    GUI::CLightWidgetAdapter adapter{&light, false};
};

/// Fills the model as an instance's is filled before a skin shows it. Its elements are none of the skin's.
void FillModel(const SCheckOptions& options, CPluginObjects& plugin, CSkinModel& model, SCheckResult& result)
{
    model.GetExposure().Use("*");
    plugin.AddTo(model);
    for (const char* name : actionNames)
    {
        model.AddAction(name, new DataModel::Objects::CAction(name), objectItself, true);
    }
    if (options.modelPath.empty())
    {
        return;
    }
    CSkinParser parser(result.log);
    result.log.SetParser(&parser);
    parser.SetDataFolder(options.dataFolder.c_str());
    CSkinModelFactory factory(parser, result.log, model);
    SetAll(factory, Audio::Plugin::DescribePlugin(plugin.GetBindings()));
    factory.Parse(options.modelPath.c_str(), false);
    result.log.SetParser(nullptr);
}

} // namespace

void BuildSkin(const SCheckOptions& options, SCheckResult& result)
{
    CPluginObjects plugin;
    CSkinModel model(&result.log);
    FillModel(options, plugin, model, result);

    Graphics::CGraphicResourcesManager images;
    Graphics::CFontManager fonts(Graphics::GetFontsFolder(options.dataFolder));
    SSkinUIServices services{images, fonts};
    services.findAction = [&model](const char* name)
    { return FindObject<DataModel::Objects::IConstAction>(model.GetObjects(), name); };

    CUnseenWindow window;
    CGUISkinData data(model);
    CExposedProperties(data, "window")
        .ExposeWindow([] { return 1.0F; }, [](float) {}, nullptr, [] { return true; }, nullptr);
    CSkinParser parser(result.log);
    CElementPrinter elements;
    result.log.SetParser(&parser);
    parser.SetDataFolder(options.dataFolder.c_str());
    parser.SetElementListener(&elements);
    CSkinUIElementsHandler handler(parser, result.log, data, services, window);
    SetAll(handler, Audio::Plugin::DescribePlugin(plugin.GetBindings()));
    SetAll(handler, options.variables);
    handler.Parse(options.path.c_str(), false); // everything that the skin could expose
    parser.SetElementListener(nullptr);
    result.log.SetParser(nullptr);
    model.GetObjects().SetLog(nullptr);
    result.elements = elements.GetElements();
    result.objects = DescribeObjects(model);
    data.Clear();
}

} // namespace SkinCheck
