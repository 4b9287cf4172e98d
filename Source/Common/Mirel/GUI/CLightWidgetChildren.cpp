#include "Mirel/GUI/CLightWidget.h"

#include "Mirel/GUI/ILightWidgetHost.h"

#include <algorithm>

namespace Mirel::GUI
{

void CLightWidget::SetParent(CLightWidget* newParent)
{
    if (newParent == parent)
    {
        return;
    }
    if (newParent != nullptr)
    {
        newParent->AddChild(this);
    }
    else
    {
        parent->RemoveChild(this);
    }
}

void CLightWidget::AddChild(CLightWidget* child, bool childFront)
{
    if (child == nullptr || child->host != nullptr || StandsIn(*child))
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    const Core::CLifeToken::CWatch childWatch(child->life);
    if (child->parent == this)
    {
        Unlink(*child);
    }
    else if (child->parent != nullptr)
    {
        child->parent->RemoveChild(child);
    }
    // Handlers that heard of the removal may have destroyed either, or given the child another parent.
    if (watch.IsAlive() && childWatch.IsAlive() && child->parent == nullptr && !StandsIn(*child))
    {
        Insert(*child, childFront);
        MarkDirty();
        child->InvalidateAround(child->GetArea());
    }
}

bool CLightWidget::RemoveChild(CLightWidget* child)
{
    if (child == nullptr || child->parent != this)
    {
        return false;
    }
    MarkDirty();
    child->InvalidateAround(child->GetArea());
    ILightWidgetHost* const treeHost = GetHost();
    Unlink(*child);
    if (treeHost != nullptr)
    {
        treeHost->OnLightRemoved(*child);
    }
    return true;
}

void CLightWidget::Clear()
{
    const Core::CLifeToken::CWatch watch(life);
    while (watch.IsAlive() && !children.empty())
    {
        RemoveChild(children.back());
    }
}

CLightWidget* CLightWidget::GetChild(int index) const
{
    return index >= 0 && index < GetChildCount() ? children[static_cast<std::size_t>(index)] : nullptr;
}

bool CLightWidget::StandsIn(const CLightWidget& other) const
{
    const CLightWidget* widget = this;
    while (widget != nullptr && widget != &other)
    {
        widget = widget->parent;
    }
    return widget != nullptr;
}

void CLightWidget::Insert(CLightWidget& child, bool childFront)
{
    const auto place = childFront ? children.end()
                                  : std::find_if(children.begin(), children.end(),
                                                 [](const CLightWidget* other) { return other->front; });
    children.insert(place, &child);
    child.parent = this;
    child.front = childFront;
}

void CLightWidget::Unlink(CLightWidget& child)
{
    children.erase(std::find(children.begin(), children.end(), &child));
    child.parent = nullptr;
}

} // namespace Mirel::GUI
