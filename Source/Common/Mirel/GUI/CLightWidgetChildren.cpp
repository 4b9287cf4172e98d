#include "Mirel/GUI/CLightWidget.h"

#include "Mirel/GUI/ILightWidgetHost.h"

#include <algorithm>
#include <iterator>

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

void CLightWidget::SetInsertionPoint(const CLightWidget* child)
{
    const bool isPlace = child != nullptr && child->parent == this && !child->front;
    insertionPoint = child == nullptr ? 0 : isPlace ? FindChild(*child) + 1 : atEnd;
}

/// Its place among the children. From both ends: many come and go at one of them.
std::ptrdiff_t CLightWidget::FindChild(const CLightWidget& child) const
{
    std::ptrdiff_t first = 0;
    std::ptrdiff_t last = std::ssize(children) - 1;
    while (children[static_cast<std::size_t>(first)] != &child &&
           children[static_cast<std::size_t>(last)] != &child)
    {
        ++first;
        --last;
    }
    return children[static_cast<std::size_t>(first)] == &child ? first : last;
}

void CLightWidget::Insert(CLightWidget& child, bool childFront)
{
    const auto isBehind = [](const CLightWidget* other) { return !other->front; };
    auto place = children.end();
    if (!childFront)
    {
        place = insertionPoint == atEnd ? std::find_if(children.rbegin(), children.rend(), isBehind).base()
                                        : children.begin() + insertionPoint++;
    }
    children.insert(place, &child);
    child.parent = this;
    child.front = childFront;
}

void CLightWidget::Unlink(CLightWidget& child)
{
    const std::ptrdiff_t place = FindChild(child);
    children.erase(children.begin() + place);
    child.parent = nullptr;
    if (place < insertionPoint)
    {
        --insertionPoint;
    }
}

} // namespace Mirel::GUI
