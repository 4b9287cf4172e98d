#include "AAXPlugin/EditorFactory.h"

#include "AAXPlugin/Identity.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/GUI/Native/Dialogs/CDesktopDialogs.h"

namespace MirelExt::AAXPlugin
{

using namespace Mirel::Audio::Plugin;
using namespace Mirel::GUI;

namespace
{

/// Where nobody sees a window, nobody is asked.
std::unique_ptr<IDialogs> MakeDialogs(INativePlatform& platform)
{
    return platform.HasDisplay() ? std::make_unique<CDesktopDialogs>(platform.GetRunLoop()) : nullptr;
}

SSkinEditorOptions MakeOptions()
{
    SSkinEditorOptions options;
    options.productName = ProductName;
    options.productVersion = ProductVersion;
    options.makerName = ManufacturerName;
    options.legalLine = LegalLine;
    options.website = WebsiteAddress;
    options.updatesPage = UpdatesAddress;
    options.skinsPage = SkinsAddress;
    options.makeDialogs = MakeDialogs;
    return options;
}

} // namespace

void SetEditorFactory(CAudioPluginInternalsBase& internals)
{
    internals.GetEditor().SetFactory(
        [&internals] { return std::make_unique<CAudioPluginSkinGUI>(internals, MakeOptions()); });
}

} // namespace MirelExt::AAXPlugin
