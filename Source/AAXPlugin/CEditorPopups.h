#pragma once

#include "Mirel/Audio/Plugin/IEditorPopups.h"
#include "Mirel/DataModel/GUIWidgets/CFineEditOpener.h"
#include "Mirel/GUI/CWindow.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialogs.h"
#include "Mirel/GUI/Native/Dialogs/CDesktopDialogs.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"
#include "Mirel/GUI/Popups/CDrawnTooltips.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/Graphics/CFontManager.h"

#include <optional>
#include <string>

namespace MirelExt::AAXPlugin
{

/// Dialogs of the user's desktop, with drawn ones in their place where that has none, and drawn menus. GUI
/// thread only.
class CEditorPopups : public Mirel::Audio::Plugin::IEditorPopups
{
public:
    /// The window must outlive the object. The data folder holds the product's fonts.
    CEditorPopups(Mirel::GUI::CWindow& window_, const std::string& dataFolder);
    CEditorPopups(const CEditorPopups&) = delete;
    CEditorPopups& operator=(const CEditorPopups&) = delete;

    Mirel::GUI::IDialogs* GetDialogs() override { return &dialogs; }
    Mirel::GUI::IMenuPresenter* GetMenus() override { return &menus; }
    Mirel::GUI::ITooltipPresenter* GetTooltips() override { return &tooltips; }
    Mirel::DataModel::GUIWidgets::IFineEditOpener* GetFineEdit() override { return &*fineEdit; }
    void CloseAll() override;

private:
    Mirel::GUI::CWindow& window;
    Mirel::Graphics::CFontManager fonts;
    Mirel::GUI::CPopupLook look;
    Mirel::GUI::CDrawnDialogs drawnDialogs;
    Mirel::GUI::CDesktopDialogs dialogs;
    Mirel::GUI::CDrawnMenus menus;
    Mirel::GUI::CDrawnTooltips tooltips;
    std::optional<Mirel::DataModel::GUIWidgets::CFineEditOpener> fineEdit;
};

} // namespace MirelExt::AAXPlugin
