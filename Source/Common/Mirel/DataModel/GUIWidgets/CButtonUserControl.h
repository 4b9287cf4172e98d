#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/CPushUserControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Steps a parameter through its stops: each press and release over the widget, and each press of an arrow
/// key, is one step and one gesture. The alternate key and D set the default. GUI thread.
class CButtonUserControl : public CPushUserControl
{
public:
    /// None is owned; all must outlive this object.
    CButtonUserControl(GUI::CLightWidget& widget_, Controls::CParamControl& control_,
                       CPushableImageWidgetGraphics& graphics_)
        : CPushUserControl(widget_, graphics_),
          control(control_)
    {
    }

    /// An up with apply is a step upward.
    void SetPushed(bool pushed, bool apply) override;

    bool OnRightDown(const GUI::COSXMouseEvent& event) override;
    bool OnRightUp(const GUI::COSXMouseEvent& event) override;

    bool AcceptsKey(const GUI::COSXKeyEvent& event) override;
    bool OnKeyDown(const GUI::COSXKeyEvent& event) override;

protected:
    void ReadModifiers(const GUI::CModifierState& event) override;
    bool TakesPress(const GUI::COSXMouseEvent& event) override;

private:
    void Step(bool upward);
    void SetDefault();

    Controls::CParamControl& control;
};

} // namespace Mirel::DataModel::GUIWidgets
