#include "Mirel/GUI/CWidgetRoot.h"

#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/CWindowBase.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

CWidgetRoot::~CWidgetRoot() = default;

void CWidgetRoot::AddChild(CWidget* child, bool owned, const CWidget* inFront)
{
    if (child == nullptr || static_cast<CWidgetRoot*>(child)->contentOf != nullptr || StandsIn(*child))
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    const Core::CLifeToken::CWatch childWatch(child->GetLifeToken());
    if (child->GetParent() != nullptr)
    {
        child->GetParent()->RemoveChild(child);
    }
    // Handlers that heard of the removal may have destroyed either, or given the child another parent.
    if (!watch.IsAlive() || !childWatch.IsAlive() || child->GetParent() != nullptr || StandsIn(*child))
    {
        return;
    }
    const auto place = inFront == nullptr ? children.end() : FindChild(inFront);
    children.insert(place, Child(child, owned));
    static_cast<CWidgetRoot*>(child)->parent = &AsWidget();
    child->Invalidate();
}

bool CWidgetRoot::RemoveChild(CWidget* child)
{
    const auto place = FindChild(child);
    if (place == children.end())
    {
        return false;
    }
    child->Invalidate();
    CWindowBase* const oldWindow = GetWindow();
    // Neither destroyed nor owned any more.
    place->Set(child, false);
    children.erase(place);
    static_cast<CWidgetRoot*>(child)->parent = nullptr;
    if (oldWindow != nullptr)
    {
        oldWindow->OnWidgetRemoved(*child);
    }
    return true;
}

CWidget* CWidgetRoot::GetChild(int index) const
{
    return index >= 0 && index < GetChildCount() ? children[static_cast<std::size_t>(index)].Get() : nullptr;
}

bool CWidgetRoot::StandsIn(const CWidgetRoot& other) const
{
    const CWidgetRoot* widget = this;
    while (widget != nullptr && widget != &other)
    {
        widget = widget->parent;
    }
    return widget != nullptr;
}

CWindowBase* CWidgetRoot::GetWindow() const
{
    const CWidgetRoot* widget = this;
    while (widget->parent != nullptr)
    {
        widget = widget->parent;
    }
    return widget->contentOf;
}

void CWidgetRoot::LeaveTree()
{
    while (!children.empty())
    {
        const bool owned = children.back().IsOwned();
        CWidget* const child = children.back().Get();
        const Core::CLifeToken::CWatch childWatch(child->GetLifeToken());
        RemoveChild(child);
        if (owned && childWatch.IsAlive())
        {
            delete child;
        }
    }
    CWidget& self = AsWidget();
    if (CWindowBase* const oldWindow = GetWindow(); oldWindow != nullptr)
    {
        self.Invalidate();
        oldWindow->OnWidgetDestroyed(self);
    }
    if (parent != nullptr)
    {
        CWidgetRoot* const around = std::exchange(parent, nullptr);
        const auto place = around->FindChild(&self);
        // It is being destroyed already.
        place->Set(&self, false);
        around->children.erase(place);
    }
}

std::vector<CWidgetRoot::Child>::iterator CWidgetRoot::FindChild(const CWidget* child)
{
    return std::find_if(children.begin(), children.end(),
                        [child](const Child& other) { return other.Get() == child; });
}

} // namespace Mirel::GUI
