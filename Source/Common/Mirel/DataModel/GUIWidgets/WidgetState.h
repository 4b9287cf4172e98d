#pragma once

#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The pictures that a widget has: their indices in its catalog.
enum EWidgetState
{
    StateNormal = 0,
    StateDisabled = 1,
    StateHover = 2,
    StateFocus = 3,
    StatePushed = 4,
    StateSelected = 5, ///< a slider that is held; shown as pushed where the catalog has none
};

/// Which of them a widget shows. The focus is seen under the pointer, too: nothing else tells where the keys
/// go.
inline EWidgetState GetWidgetState(const GUI::CLightWidget& widget, bool pushed)
{
    if (!widget.IsEnabled())
    {
        return StateDisabled;
    }
    if (pushed)
    {
        return StatePushed;
    }
    if (widget.HasFocus())
    {
        return StateFocus;
    }
    return widget.IsMouseOver() ? StateHover : StateNormal;
}

/// Runs a command when what GetWidgetState looks at changes, but for the push. GUI thread.
class CWidgetStateConnections
{
public:
    /// Neither is owned; both must outlive this object.
    CWidgetStateConnections(const GUI::CLightWidget& widget, Core::ICommand& command)
        : enabled(&widget.GetEnabledChangedEvent(), &command),
          mouseOver(&widget.GetMouseOverChangedEvent(), &command),
          focus(&widget.GetFocusChangedEvent(), &command)
    {
    }

private:
    CoreUtilities::CCallbackHelper enabled;
    CoreUtilities::CCallbackHelper mouseOver;
    CoreUtilities::CCallbackHelper focus;
};

} // namespace Mirel::DataModel::GUIWidgets
