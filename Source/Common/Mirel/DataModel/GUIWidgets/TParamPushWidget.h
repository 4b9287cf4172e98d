#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/CPushableImageWidgetGraphics.h"
#include "Mirel/GUI/CLightWidget.h"

#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

/// A widget that is pressed to change a parameter, in the way of its user control. GUI thread.
template <class UserControl>
class TParamPushWidget : public GUI::CLightWidget
{
public:
    /// The parameter is not owned and must outlive the widget. What follows the parent goes to the user
    /// control.
    template <class... Arguments>
    TParamPushWidget(Objects::ICaptureParam& param, const SPushImage& image, GUI::CLightWidget* parent_,
                     Arguments&&... arguments)
        : CLightWidget(parent_),
          control(param),
          graphics(*this, image, &control),
          userControl(*this, control, graphics, std::forward<Arguments>(arguments)...)
    {
        SetGraphics(&graphics, false);
        SetMouseTarget(&userControl, false);
        SetKeyboardTarget(&userControl, false);
    }

    /// A press in hand ends without effect.
    ~TParamPushWidget() override
    {
        userControl.Cancel();
        SetMouseTarget(nullptr, false);
        SetKeyboardTarget(nullptr, false);
        SetGraphics(nullptr, false);
    }

    Controls::CParamControl& GetControl() { return control; }
    CPushableImageWidgetGraphics& GetPushGraphics() { return graphics; }
    UserControl& GetUserControl() { return userControl; }

private:
    Controls::CParamControl control;
    CPushableImageWidgetGraphics graphics;
    UserControl userControl;
};

} // namespace Mirel::DataModel::GUIWidgets
