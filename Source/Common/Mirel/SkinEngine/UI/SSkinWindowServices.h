#pragma once

#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/IUrlOpener.h"
#include "Mirel/System/ITickSource.h"

#include <functional>
#include <string>

namespace Mirel::SkinEngine
{

/// What a skin's window needs of the program around it. Nothing is owned; all must outlive the window.
struct SSkinWindowServices
{
    /// The product's own data: its fonts, and what skins may include from there. Empty for none.
    std::string dataFolder{};

    GUI::IDialogs* dialogs = nullptr;                ///< Shows messages; null for nowhere.
    IUrlOpener* urlOpener = nullptr;                 ///< Null: pages do not open.
    const System::ITickSource* tickSource = nullptr; ///< Null for the clock of the system.

    // What widgets open; null for none.
    DataModel::GUIWidgets::IFineEditOpener* fineEdit = nullptr;
    GUI::IMenuPresenter* menus = nullptr;
    GUI::ITooltipPresenter* tooltips = nullptr;

    /// The action that a skin calls by name; null for an unknown one. Empty for no such actions.
    std::function<const DataModel::Objects::IConstAction*(const char* name)> findAction{};

    /// A widget that moves the parameter of that identifier was right-clicked. Called from within the
    /// widget's handler. Empty for nothing.
    std::function<void(const char* paramId)> onParamRightClick{};

    /// Adds the objects that the skin shows, those of the program, to the model of a skin: what its exposure
    /// wants. Called at each load once the skin's wants are marked. The objects must stay until the skin is
    /// closed; those that go before are taken out of the model by whoever added them. Empty for none.
    std::function<void(ISkinModel& model)> fillModel{};

    /// Called before the widgets of a skin go: what is open over them has to close. Empty for nothing.
    std::function<void()> closePopups{};

    /// Called before the model that was filled goes. Empty for nothing.
    std::function<void()> leaveModel{};
};

} // namespace Mirel::SkinEngine
