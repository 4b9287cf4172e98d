#pragma once

#include "Mirel/DataModel/GUIWidgets/CToggleSwitchUserControl.h"
#include "Mirel/DataModel/GUIWidgets/TParamPushWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// An image that holds a parameter at its top for as long as it is pressed. GUI thread.
class CGUIImageParamToggleSwitch : public TParamPushWidget<CToggleSwitchUserControl>
{
public:
    /// The parameter is not owned and must outlive the widget.
    CGUIImageParamToggleSwitch(Objects::ICaptureParam& param, const SPushImage& image,
                               GUI::CLightWidget* parent_ = nullptr)
        : TParamPushWidget(param, image, parent_)
    {
    }
};

/// The same over no picture of its own. GUI thread.
class CGUIInvisibleParamToggleSwitch : public CGUIImageParamToggleSwitch
{
public:
    explicit CGUIInvisibleParamToggleSwitch(Objects::ICaptureParam& param,
                                            GUI::CLightWidget* parent_ = nullptr)
        : CGUIImageParamToggleSwitch(param, SPushImage(), parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
