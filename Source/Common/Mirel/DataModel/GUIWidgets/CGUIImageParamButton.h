#pragma once

#include "Mirel/DataModel/GUIWidgets/CButtonUserControl.h"
#include "Mirel/DataModel/GUIWidgets/TParamPushWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// An image that steps a parameter through its stops at each click. GUI thread.
class CGUIImageParamButton : public TParamPushWidget<CButtonUserControl>
{
public:
    /// The parameter is not owned and must outlive the widget.
    CGUIImageParamButton(Objects::ICaptureParam& param, const SPushImage& image,
                         GUI::CLightWidget* parent_ = nullptr)
        : TParamPushWidget(param, image, parent_)
    {
    }
};

/// The same over no picture of its own. GUI thread.
class CGUIInvisibleParamButton : public CGUIImageParamButton
{
public:
    explicit CGUIInvisibleParamButton(Objects::ICaptureParam& param, GUI::CLightWidget* parent_ = nullptr)
        : CGUIImageParamButton(param, SPushImage(), parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
