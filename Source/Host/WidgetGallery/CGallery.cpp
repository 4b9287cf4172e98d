#include "Host/WidgetGallery/CGallery.h"

#include "Host/WidgetGallery/LayoutSection.h"
#include "Host/WidgetGallery/LightSection.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/Graphics/CColorDrawer.h"

#include <algorithm>
#include <cmath>

namespace WidgetGallery
{

namespace
{

constexpr int firstHeight = 760;

} // namespace

CGallery::CGallery(GUI::INativePlatform& platform, const GUI::CPopupLook& look, bool isWhole)
    : window(std::make_unique<GUI::CFrameWindow>(platform, "Widget Gallery",
                                                 Core::CSize{CGalleryPage::width, firstHeight})),
      menus(platform, look),
      tooltips(platform, look),
      dialogs(std::make_unique<GUI::CDrawnDialogs>(platform, look, window.get())),
      opener(std::make_unique<DataModel::GUIWidgets::CFineEditOpener>(platform, look, window.get())),
      adapter(new GUI::CLightWidgetAdapter()),
      root(std::make_unique<GUI::CLightWidget>()),
      tips(std::make_unique<GUI::CHostTooltips>(*adapter, tooltips)),
      curves(std::make_unique<CCurvesSection>()),
      controls(std::make_unique<CControlsSection>(*opener, menus, *tips)),
      popups(std::make_unique<CPopupsSection>(
          CPopupsSection::STools{*window, menus, tooltips, *dialogs, *opener})),
      page(std::make_unique<CGalleryPage>(look))
{
    root->SetGraphics(new Graphics::CColorDrawer({0x16, 0x19, 0x1C}), true);
    root->SetMouseTarget(this, false);
    root->AddChild(page.get());
    adapter->SetLightRoot(root.get(), false);
    window->SetContent(adapter, true);
    adapter->Show(true);
    AddLayoutSection(*page);
    AddLightSection(*page);
    curves->Fill(*page);
    controls->Fill(*page);
    popups->Fill(*page);
    page->Finish();
    if (isWhole)
    {
        window->SetSize(page->GetSize());
    }
    window->GetResizedEvent().Connect(onResized);
    window->GetClosingEvent().Connect(onClosing);
}

CGallery::~CGallery()
{
    window->GetResizedEvent().Disconnect(&onResized);
    window->GetClosingEvent().Disconnect(&onClosing);
    page.reset();
    tips.reset();
    root->SetMouseTarget(nullptr, false);
    adapter->SetLightRoot(nullptr, false);
    opener.reset();
    dialogs.reset();
    menus.Close();
}

void CGallery::Run()
{
    window->RunModal(nullptr);
}

bool CGallery::OnMouseWheel(const GUI::COSXMouseWheelEvent& event)
{
    constexpr double pixelsPerNotch = 60.0;
    ScrollTo(-page->GetPosition().y -
             Core::TruncateToInt32(std::round(static_cast<double>(event.deltaY) * pixelsPerNotch)));
    return true;
}

void CGallery::OnResized()
{
    ScrollTo(-page->GetPosition().y);
}

void CGallery::ScrollTo(int top)
{
    const int lowest = std::max(page->GetSize().height - root->GetSize().height, 0);
    page->Move({0, -std::clamp(top, 0, lowest)});
}

} // namespace WidgetGallery
