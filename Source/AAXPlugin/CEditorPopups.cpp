#include "AAXPlugin/CEditorPopups.h"

namespace MirelExt::AAXPlugin
{

using namespace Mirel::GUI;

namespace
{

CDesktopDialogs::SOptions WithFallback(IDialogs& fallback)
{
    CDesktopDialogs::SOptions options;
    options.fallback = &fallback;
    return options;
}

} // namespace

CEditorPopups::CEditorPopups(CWindow& window_, const std::string& dataFolder)
    : window(window_),
      fonts(Mirel::Graphics::GetFontsFolder(dataFolder)),
      look(MakePopupLook(fonts)),
      drawnDialogs(window.GetPlatform(), look, &window),
      dialogs(window.GetPlatform().GetRunLoop(), WithFallback(drawnDialogs)),
      menus(window.GetPlatform(), look),
      tooltips(window.GetPlatform(), look)
{
    fineEdit.emplace(window.GetPlatform(), look, &window);
}

void CEditorPopups::CloseAll()
{
    menus.Close();
    tooltips.Hide();
    // At the same place: the widgets of the next skin are given it again.
    fineEdit.emplace(window.GetPlatform(), look, &window);
}

} // namespace MirelExt::AAXPlugin
