#pragma once

#include "Host/WidgetGallery/CControlsSection.h"
#include "Host/WidgetGallery/CCurvesSection.h"
#include "Host/WidgetGallery/CGalleryPage.h"
#include "Host/WidgetGallery/CPopupsSection.h"
#include "Mirel/GUI/CFrameWindow.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"

#include <memory>

namespace WidgetGallery
{

/// The window with the page; the wheel scrolls it where it is too high. GUI thread only.
class CGallery : private GUI::CMouseTarget
{
public:
    /// The platform must outlive the gallery.
    CGallery(GUI::INativePlatform& platform, const GUI::CPopupLook& look, bool isWhole);
    CGallery(const CGallery&) = delete;
    CGallery& operator=(const CGallery&) = delete;
    ~CGallery() override;

    GUI::CFrameWindow& GetWindow() { return *window; }
    CPopupsSection& GetPopups() { return *popups; }
    GUI::CDrawnDialogs& GetDialogs() { return *dialogs; }

    /// Shows the window and runs until it is closed.
    void Run();

private:
    bool OnMouseWheel(const GUI::COSXMouseWheelEvent& event) override;
    void OnResized();
    void OnClosing() { window->Show(false); }
    void ScrollTo(int top);

    std::unique_ptr<GUI::CFrameWindow> window;
    GUI::CDrawnMenus menus;
    GUI::CDrawnTooltips tooltips;
    std::unique_ptr<GUI::CDrawnDialogs> dialogs;
    std::unique_ptr<DataModel::GUIWidgets::CFineEditOpener> opener;
    GUI::CLightWidgetAdapter* adapter;
    std::unique_ptr<GUI::CLightWidget> root;
    std::unique_ptr<GUI::CHostTooltips> tips;
    std::unique_ptr<CCurvesSection> curves;
    std::unique_ptr<CControlsSection> controls;
    std::unique_ptr<CPopupsSection> popups;
    std::unique_ptr<CGalleryPage> page;
    Core::TCommand<CGallery> onResized{this, &CGallery::OnResized};
    Core::TCommand<CGallery> onClosing{this, &CGallery::OnClosing};
};

} // namespace WidgetGallery
