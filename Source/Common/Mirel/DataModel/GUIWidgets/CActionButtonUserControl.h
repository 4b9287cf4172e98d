#pragma once

#include "Mirel/DataModel/GUIWidgets/CPushUserControl.h"
#include "Mirel/DataModel/Objects/IConstAction.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Runs an action at each press and release over the widget, or of the return key. GUI thread.
class CActionButtonUserControl : public CPushUserControl
{
public:
    /// None is owned; all must outlive this object.
    CActionButtonUserControl(GUI::CLightWidget& widget_, const Objects::IConstAction& action_,
                             CPushableImageWidgetGraphics& graphics_)
        : CPushUserControl(widget_, graphics_),
          action(action_)
    {
    }

    /// An up with apply runs the action, at the end.
    void SetPushed(bool pushed, bool apply) override
    {
        if (pushed == IsPushed())
        {
            return;
        }
        const Core::CLifeToken::CWatch watch(GetLifeToken());
        GetGraphics().SetPushed(pushed);
        if (!pushed && apply && watch.IsAlive())
        {
            action.Execute();
        }
    }

private:
    const Objects::IConstAction& action;
};

} // namespace Mirel::DataModel::GUIWidgets
