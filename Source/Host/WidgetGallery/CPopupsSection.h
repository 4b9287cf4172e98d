#pragma once

#include "Host/WidgetGallery/CGalleryPage.h"
#include "Host/WidgetGallery/IGallerySection.h"
#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/CFineEditOpener.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialogs.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"
#include "Mirel/GUI/Popups/CDrawnTooltips.h"

#include <functional>
#include <string>

namespace WidgetGallery
{

/// The controls of the toolkit's own dialogs, and buttons that open its menus, tooltips and dialogs.
class CPopupsSection : public IGallerySection
{
public:
    /// What shows the popups, over the window; none is owned.
    struct STools
    {
        GUI::CWindowBase& window;
        GUI::CDrawnMenus& menus;
        GUI::CDrawnTooltips& tooltips;
        GUI::CDrawnDialogs& dialogs;
        DataModel::GUIWidgets::CFineEditOpener& opener;
    };

    explicit CPopupsSection(const STools& tools_);

    void Fill(CGalleryPage& page);

    /// Device pixels of the screen.
    void OpenMenu(Core::CPoint place);
    void ShowTooltip(Core::CPoint place, bool isBalloon);
    GUI::IDialogs::DialogId ShowAlert(GUI::EMessageKind kind, GUI::EMessageButtons buttons);
    GUI::IDialogs::DialogId ChooseFile(const std::string& folder, bool isSave);
    void OpenFineEdit(Core::CPoint place);

private:
    void AddControls(CGalleryPage& page);
    void AddOpener(CGalleryPage& page, const std::string& text, std::function<void()> open);
    void FillMenu();

    STools tools;
    GUI::CMenu menu;
    DataModel::Objects::CCaptureParam param;
    DataModel::Controls::CParamControl control;
};

} // namespace WidgetGallery
