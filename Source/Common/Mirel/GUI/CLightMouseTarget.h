#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CMouseTarget.h"

#include <memory>

namespace Mirel::GUI
{

class CLightWidget;

/// Stands between the host and what handles a light widget's mouse events: knows whether the pointer is over
/// the widget, and keeps presses, clicks and the wheel from a widget that is not enabled. Without a target
/// nothing is handled. GUI thread only.
class CLightMouseTarget : public CMouseTarget
{
public:
    explicit CLightMouseTarget(const CLightWidget& widget_) : widget(widget_) {}

    /// Null for none. One that is not owned must be replaced before it dies; an owned one may be replaced in
    /// its own handlers, and lives until they return.
    void SetTarget(CMouseTarget* newTarget, bool owned);
    CMouseTarget* GetTarget() const { return target.get(); }

    bool IsMouseOver() const { return mouseOver; }
    Core::IEventProvider& GetMouseOverChangedEvent() const { return mouseOverChanged; }

    /// The pointer is elsewhere and the target is not to be told.
    void ForgetMouse() { SetMouseOver(false); }

    bool OnLeftDown(const COSXMouseEvent& event) override;
    bool OnLeftUp(const COSXMouseEvent& event) override;
    bool OnLeftClick(const COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const COSXMouseEvent& event) override;
    bool OnRightDown(const COSXMouseEvent& event) override;
    bool OnRightUp(const COSXMouseEvent& event) override;
    bool OnRightClick(const COSXMouseEvent& event) override;
    bool OnRightDoubleClick(const COSXMouseEvent& event) override;
    bool OnMouseEnter(const COSXMouseEvent& event) override;
    bool OnMouseMove(const COSXMouseEvent& event) override;
    bool OnCursorUpdate(const COSXMouseEvent& event) override;
    bool OnMouseLeave(const COSXMouseEvent& event) override;
    bool OnMouseDrag(const COSXMouseEvent& event) override;
    bool OnMouseWheel(const COSXMouseWheelEvent& event) override;
    void OnCaptureLost() override;

private:
    template <class Event>
    bool Send(bool (CMouseTarget::*operation)(const Event&), const Event& event);
    template <class Event>
    bool SendIfEnabled(bool (CMouseTarget::*operation)(const Event&), const Event& event);
    bool SetMouseOver(bool over);

    const CLightWidget& widget;
    std::shared_ptr<CMouseTarget> target;
    bool mouseOver = false;
    mutable Core::CEventProvider mouseOverChanged;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
