#include "AAXPlugin/EditorFactory.h"

#include "AAXPlugin/CEditorPopups.h"
#include "AAXPlugin/Identity.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/Audio/Plugin/PluginVariables.h"

namespace MirelExt::AAXPlugin
{

using namespace Mirel::Audio::Plugin;
using namespace Mirel::GUI;

namespace
{

/// Where nobody sees a window, nobody is asked.
std::unique_ptr<IEditorPopups> MakePopups(CWindow& window, const std::string& dataFolder)
{
    return window.GetPlatform().HasDisplay() ? std::make_unique<CEditorPopups>(window, dataFolder) : nullptr;
}

SSkinEditorOptions MakeOptions(CAudioPluginInternalsBase& internals)
{
    SSkinEditorOptions options;
    options.productName = ProductName;
    options.productVersion = ProductVersion;
    options.makerName = ManufacturerName;
    options.legalLine = LegalLine;
    options.website = WebsiteAddress;
    options.updatesPage = UpdatesAddress;
    options.skinsPage = SkinsAddress;
    options.makePopups = [dataFolder = FindDataFolder(internals.GetBindings())](CWindow& window)
    { return MakePopups(window, dataFolder); };
    return options;
}

} // namespace

void SetEditorFactory(CAudioPluginInternalsBase& internals)
{
    internals.GetEditor().SetFactory(
        [&internals] { return std::make_unique<CAudioPluginSkinGUI>(internals, MakeOptions(internals)); });
}

} // namespace MirelExt::AAXPlugin
