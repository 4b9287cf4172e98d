#pragma once

#include "Mirel/Layout/CContentLayoutCell.h"

namespace Mirel::GUI
{

class CLightWidget;

/// The area of a light widget in the layout, and the group of the cells inside of it. GUI thread only.
class CLightWidgetLayoutCell : public Layout::CContentLayoutCell
{
public:
    /// The widget is not owned and must outlive the cell.
    explicit CLightWidgetLayoutCell(CLightWidget& widget_,
                                    Layout::ELayoutType layoutType_ = Layout::ELayoutType::Row);

    CLightWidget& GetWidget() const { return widget; }

    void Arrange(const Core::CPoint& point) override;

    /// For the widget: lays out again, unless the size is the one that the layout just gave.
    void OnWidgetSizeChanged();

private:
    CLightWidget& widget;
    int arranging = 0; ///< Calls of Arrange under way.
};

} // namespace Mirel::GUI
