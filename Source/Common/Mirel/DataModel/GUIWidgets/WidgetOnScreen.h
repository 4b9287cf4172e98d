#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowBase.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The window that the widget is in; null for none.
inline const GUI::CWindowBase* GetWindowOf(const GUI::CLightWidget& widget)
{
    const GUI::CWidget* const root = widget.GetRootWidget();
    return root == nullptr ? nullptr : root->GetWindow();
}

/// Where a point of the widget stands on the screen, in device pixels; 0, 0 outside of a window.
inline Core::CPoint ToScreen(const GUI::CLightWidget& widget, Core::CPoint point = Core::CPoint())
{
    const GUI::CWindowBase* const window = GetWindowOf(widget);
    return window == nullptr
               ? Core::CPoint()
               : window->ToScreen(GUI::Plus(
                     GUI::Plus(widget.GetRootWidget()->GetPositionInWindow(), widget.GetAbsolutePosition()),
                     point));
}

/// The same for the place right below the widget, where what belongs to it opens.
inline Core::CPoint GetPlaceBelow(const GUI::CLightWidget& widget)
{
    return ToScreen(widget, {0, widget.GetSize().height});
}

} // namespace Mirel::DataModel::GUIWidgets
