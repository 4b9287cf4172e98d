#include "Mirel/GUI/FindWidget.h"

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"

#include <cstdint>

namespace Mirel::GUI
{

namespace
{

bool IsStrictlyInside(CPoint point, CPoint origin, CSize size)
{
    return point.x > origin.x && point.y > origin.y && std::int64_t{point.x} - origin.x < size.width &&
           std::int64_t{point.y} - origin.y < size.height;
}

} // namespace

CWidget* FindWidget(CWidget& widget, CPoint point)
{
    if (!widget.IsShown() || !widget.IsEnabled() || !CRect(CPoint(), widget.GetSize()).Contains(point))
    {
        return nullptr;
    }
    for (int i = widget.GetChildCount() - 1; i >= 0; --i)
    {
        CWidget& child = *widget.GetChild(i);
        if (CWidget* const found = FindWidget(child, Minus(point, child.GetPosition())); found != nullptr)
        {
            return found;
        }
    }
    return widget.HitTest(point) ? &widget : nullptr;
}

CLightWidget* FindLightWidget(CLightWidget& widget, CPoint point)
{
    if (!widget.IsShown())
    {
        return nullptr;
    }
    for (int i = widget.GetChildCount() - 1; i >= 0; --i)
    {
        CLightWidget& child = *widget.GetChild(i);
        if (child.IsShown() && IsStrictlyInside(point, child.GetPosition(), child.GetSize()))
        {
            CLightWidget* const found = FindLightWidget(child, Minus(point, child.GetPosition()));
            if (found != nullptr)
            {
                return found;
            }
        }
    }
    const bool takesMouse = widget.GetMouseTarget() != nullptr && widget.IsMouseSensitive();
    return takesMouse && widget.GetGraphics()->HitTest(point) ? &widget : nullptr;
}

} // namespace Mirel::GUI
