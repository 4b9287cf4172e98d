#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/GUI/CNativeWidgetEventsHandler.h"

#include <vector>

namespace Mirel::GUI
{

class CWidget;
class CWindowBase;

/// The bottom of a native-backed widget: its place in the tree, and who hears of it. GUI thread only.
class CWidgetRoot
{
public:
    CWidgetRoot() = default;
    CWidgetRoot(const CWidgetRoot&) = delete;
    CWidgetRoot& operator=(const CWidgetRoot&) = delete;
    virtual ~CWidgetRoot();

    CWidget* GetParent() const { return parent; }

    /// Puts the child in front of its siblings, or directly behind the given one. An owned child goes with
    /// this widget. Takes it from its present parent. Null, the widget itself, one that it stands in and the
    /// content of a window are ignored, and stay the caller's.
    void AddChild(CWidget* child, bool owned, const CWidget* inFront = nullptr);

    /// Takes the child out; it is not destroyed, and if it was owned it is the caller's now. False if it is
    /// no child of this widget.
    bool RemoveChild(CWidget* child);

    int GetChildCount() const { return static_cast<int>(children.size()); }

    /// From the back; null out of range.
    CWidget* GetChild(int index) const;

    /// True for the widget itself and all that it stands in.
    bool StandsIn(const CWidgetRoot& other) const;

    /// Null if the tree is in no window.
    CWindowBase* GetWindow() const;

    /// Not owned; a target must be removed before it dies.
    void AddEventsTarget(CWidgetEventsTarget* target) { events.AddTarget(target); }
    void RemoveEventsTarget(CWidgetEventsTarget* target) { events.RemoveTarget(target); }
    const CNativeWidgetEventsHandler& GetEventsHandler() const { return events; }

    /// For code that calls out to handlers.
    const Core::CLifeToken& GetLifeToken() const { return life; }

    /// For the window of which this is the content; null when it lets go.
    void SetWindow(CWindowBase* newWindow) { contentOf = newWindow; }

protected:
    virtual CWidget& AsWidget() = 0;

    /// Children first, then the place in the parent. For the destructor of the class that AsWidget needs.
    void LeaveTree();

private:
    using Child = Core::TOwnership<CWidget>;

    std::vector<Child>::iterator FindChild(const CWidget* child);

    CWidget* parent = nullptr;
    CWindowBase* contentOf = nullptr; ///< Of a content widget only.
    std::vector<Child> children;
    CNativeWidgetEventsHandler events;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
