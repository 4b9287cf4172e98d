#include "Mirel/GUI/FocusStops.h"

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"

namespace Mirel::GUI
{

namespace
{

using CStops = std::vector<CLightWidget*>;

bool IsStop(const CLightWidget& widget)
{
    return widget.HasFocus() || (widget.GetKeyboardTarget() != nullptr && widget.IsEnabled());
}

/// What is seen of a child, in its coordinates, where `seen` is that of its parent.
template <class Widget>
CRect FindSeen(const Widget& child, const CRect& seen)
{
    const bool isSeen = child.IsShown() && child.GetOpacity() > 0.0F;
    return isSeen ? Intersect(Minus(seen, child.GetPosition()), {CPoint(), child.GetSize()}) : CRect();
}

void AddStops(CLightWidget& widget, const CRect& seen, CStops& stops)
{
    if (seen.IsEmpty())
    {
        return;
    }
    if (IsStop(widget))
    {
        stops.push_back(&widget);
    }
    for (int i = 0; i < widget.GetChildCount(); ++i)
    {
        CLightWidget& child = *widget.GetChild(i);
        AddStops(child, FindSeen(child, seen), stops);
    }
}

void AddStops(const CWidget& widget, const CRect& seen, CStops& stops)
{
    if (seen.IsEmpty() || !widget.IsEnabled())
    {
        return;
    }
    if (CLightWidget* const root = widget.GetLightRoot(); root != nullptr)
    {
        AddStops(*root, FindSeen(*root, seen), stops);
    }
    for (int i = 0; i < widget.GetChildCount(); ++i)
    {
        const CWidget& child = *widget.GetChild(i);
        AddStops(child, FindSeen(child, seen), stops);
    }
}

} // namespace

std::vector<CLightWidget*> FindFocusStops(const CWidget& widget)
{
    CStops stops;
    AddStops(widget, FindSeen(widget, {widget.GetPosition(), widget.GetSize()}), stops);
    return stops;
}

} // namespace Mirel::GUI
