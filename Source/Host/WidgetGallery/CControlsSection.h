#pragma once

#include "Host/WidgetGallery/CGalleryPage.h"
#include "Host/WidgetGallery/IGallerySection.h"
#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/GUI/Popups/CHostTooltips.h"

#include <memory>
#include <string>
#include <vector>

namespace WidgetGallery
{

/// Knobs, meters, sliders, buttons, lists and value texts, each with a parameter of its own; the meters
/// follow the first knob. What the tools open is shown by the window.
class CControlsSection : public IGallerySection
{
public:
    /// All are not owned and must outlive the page.
    CControlsSection(DataModel::GUIWidgets::IFineEditOpener& opener_, GUI::IMenuPresenter& menus_,
                     GUI::CHostTooltips& tips_);

    void Fill(CGalleryPage& page);

private:
    DataModel::Objects::CCaptureParam& MakeParam(float value);
    DataModel::Objects::CCaptureParam& MakeChoice(const std::vector<std::string>& names, float value);
    void AddKnobs(CGalleryPage& page);
    void AddMeters(CGalleryPage& page);
    void AddSliders(CGalleryPage& page);
    void AddButtons(CGalleryPage& page);
    void AddTexts(CGalleryPage& page);

    DataModel::GUIWidgets::IFineEditOpener& opener;
    GUI::IMenuPresenter& menus;
    GUI::CHostTooltips& tips;
    std::vector<std::unique_ptr<DataModel::Objects::CCaptureParam>> params;
};

} // namespace WidgetGallery
