#include "Mirel/GUI/CLightWidgetLayoutCell.h"

#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::GUI
{

CLightWidgetLayoutCell::CLightWidgetLayoutCell(CLightWidget& widget_, Layout::ELayoutType layoutType_)
    : CContentLayoutCell(widget_, layoutType_),
      widget(widget_)
{
}

void CLightWidgetLayoutCell::Arrange(const Core::CPoint& point)
{
    ++arranging;
    CContentLayoutCell::Arrange(point);
    --arranging;
}

void CLightWidgetLayoutCell::OnWidgetSizeChanged()
{
    if (arranging == 0)
    {
        Update();
    }
}

} // namespace Mirel::GUI
