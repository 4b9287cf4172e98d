#pragma once

#include "Mirel/DataModel/GUIWidgets/CSkinParamDropDownUserControl.h"
#include "Mirel/DataModel/GUIWidgets/TParamPushWidget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// An image that opens the list of a parameter's values. GUI thread.
class CGUIImageParamDropDownList : public TParamPushWidget<CSkinParamDropDownUserControl>
{
public:
    /// The parameter is not owned and must outlive the widget, and so must the presenter; without one no list
    /// opens.
    CGUIImageParamDropDownList(Objects::ICaptureParam& param, const SPushImage& image,
                               GUI::IMenuPresenter* presenter, GUI::CLightWidget* parent_ = nullptr)
        : TParamPushWidget(param, image, parent_, presenter)
    {
    }
};

/// The same over no picture of its own. GUI thread.
class CGUIInvisibleParamDropDownList : public CGUIImageParamDropDownList
{
public:
    explicit CGUIInvisibleParamDropDownList(Objects::ICaptureParam& param, GUI::IMenuPresenter* presenter,
                                            GUI::CLightWidget* parent_ = nullptr)
        : CGUIImageParamDropDownList(param, SPushImage(), presenter, parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
