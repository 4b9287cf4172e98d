#pragma once

#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"

namespace Mirel::Audio::Plugin
{

/// What an editor opens over its window. Each may be null: there is nothing of the kind, as where there is no
/// user. GUI thread only.
class IEditorPopups
{
public:
    virtual GUI::IDialogs* GetDialogs() = 0;
    virtual GUI::IMenuPresenter* GetMenus() = 0;
    virtual GUI::ITooltipPresenter* GetTooltips() = 0;
    virtual DataModel::GUIWidgets::IFineEditOpener* GetFineEdit() = 0;

    /// Closes what belongs to widgets of a skin, which are about to go.
    virtual void CloseAll() = 0;

    virtual ~IEditorPopups() = default;
};

} // namespace Mirel::Audio::Plugin
