#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/CPushUserControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Holds a parameter at its top for as long as the button or a key is down, in one gesture. Every way up sets
/// it back. GUI thread.
class CToggleSwitchUserControl : public CPushUserControl
{
public:
    /// None is owned; all must outlive this object.
    CToggleSwitchUserControl(GUI::CLightWidget& widget_, Controls::CParamControl& control_,
                             CPushableImageWidgetGraphics& graphics_)
        : CPushUserControl(widget_, graphics_),
          control(control_)
    {
    }

    void SetPushed(bool pushed);
    void SetPushed(bool pushed, bool /*apply*/) override { SetPushed(pushed); }

    bool OnRightDown(const GUI::COSXMouseEvent& event) override;
    bool OnRightUp(const GUI::COSXMouseEvent& event) override;

protected:
    bool Pushes(const GUI::COSXKeyEvent& event) const override;

private:
    Controls::CParamControl& control;
};

} // namespace Mirel::DataModel::GUIWidgets
