#pragma once

#include "Mirel/DataModel/GUIWidgets/CActionButtonUserControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// An image that runs an action at each click. GUI thread.
class CGUIImageActionButton : public GUI::CLightWidget
{
public:
    /// The action is not owned and must outlive the widget, but may destroy it in its run.
    CGUIImageActionButton(const Objects::IConstAction& action, const SPushImage& image,
                          GUI::CLightWidget* parent_ = nullptr)
        : CLightWidget(parent_),
          graphics(*this, image),
          userControl(*this, action, graphics)
    {
        SetGraphics(&graphics, false);
        SetMouseTarget(&userControl, false);
        SetKeyboardTarget(&userControl, false);
    }
    ~CGUIImageActionButton() override
    {
        SetMouseTarget(nullptr, false);
        SetKeyboardTarget(nullptr, false);
        SetGraphics(nullptr, false);
    }

    CPushableImageWidgetGraphics& GetPushGraphics() { return graphics; }
    CActionButtonUserControl& GetUserControl() { return userControl; }

private:
    CPushableImageWidgetGraphics graphics;
    CActionButtonUserControl userControl;
};

/// The same over no picture of its own. GUI thread.
class CGUIInvisibleActionButton : public CGUIImageActionButton
{
public:
    explicit CGUIInvisibleActionButton(const Objects::IConstAction& action,
                                       GUI::CLightWidget* parent_ = nullptr)
        : CGUIImageActionButton(action, SPushImage(), parent_)
    {
    }
};

} // namespace Mirel::DataModel::GUIWidgets
