#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/CGraphicResourcesManager.h"
#include "Mirel/SkinEngine/Model/SSkinModelServices.h"

#include <functional>

namespace Mirel::SkinEngine
{

/// What the widgets of a skin need of the program around it. Nothing is owned; all must outlive what the skin
/// has built, whose collections make widgets for as long as it lives.
struct SSkinUIServices
{
    Graphics::CGraphicResourcesManager& images;
    Graphics::CFontManager& fonts;
    SSkinModelServices model{};

    /// The action that a skin calls by name; null for an unknown one. Empty for no such actions.
    std::function<const DataModel::Objects::IConstAction*(const char* name)> findAction{};

    /// A widget that moves the parameter of that identifier was right-clicked. Empty for nothing.
    std::function<void(const char* paramId)> onParamRightClick{};

    // Null for none.
    DataModel::GUIWidgets::IFineEditOpener* fineEdit = nullptr;
    GUI::IMenuPresenter* menus = nullptr;
    GUI::ITooltipPresenter* tooltips = nullptr;

    /// Shows the messages of an item of a collection that was built with errors; empty for nowhere.
    std::function<void(CoreUtilities::CMemMessageLog& log)> showItemMessages{};
};

} // namespace Mirel::SkinEngine
