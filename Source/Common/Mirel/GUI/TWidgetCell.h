#pragma once

#include "Mirel/Layout/CContentLayoutCell.h"

namespace Mirel::GUI
{

/// The area of a widget in the layout, and the group of the cells inside of it. GUI thread only.
template <class Widget>
class TWidgetCell : public Layout::CContentLayoutCell
{
public:
    /// The widget is not owned and must outlive the cell.
    explicit TWidgetCell(Widget& widget_, Layout::ELayoutType layoutType_ = Layout::ELayoutType::Row)
        : CContentLayoutCell(widget_, layoutType_),
          widget(widget_)
    {
    }

    Widget& GetWidget() const { return widget; }

    void Arrange(const Core::CPoint& point) override
    {
        ++arranging;
        CContentLayoutCell::Arrange(point);
        --arranging;
    }

    /// For the widget: lays out again, unless the size is the one that the layout just gave.
    void OnWidgetSizeChanged()
    {
        if (arranging == 0)
        {
            Update();
        }
    }

private:
    Widget& widget;
    int arranging = 0; ///< Calls of Arrange under way.
};

} // namespace Mirel::GUI
