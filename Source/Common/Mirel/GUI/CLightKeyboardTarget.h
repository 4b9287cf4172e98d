#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CKeyboardTarget.h"

#include <memory>

namespace Mirel::GUI
{

class CLightWidget;

/// Stands between the host and what handles a light widget's keys: knows whether the widget has the focus,
/// and keeps keys from a widget that is not enabled. Without a target nothing is handled. GUI thread only.
class CLightKeyboardTarget : public CKeyboardTarget
{
public:
    explicit CLightKeyboardTarget(const CLightWidget& widget_) : widget(widget_) {}

    /// As CLightMouseTarget::SetTarget.
    void SetTarget(CKeyboardTarget* newTarget, bool owned);
    CKeyboardTarget* GetTarget() const { return target.get(); }

    bool HasFocus() const { return focused; }
    Core::IEventProvider& GetFocusChangedEvent() const { return focusChanged; }

    bool OnKeyDown(const COSXKeyEvent& event) override;
    bool OnKeyUp(const COSXKeyEvent& event) override;
    bool OnModifierChanged(const COSXModifierKeyEvent& event) override;
    bool AcceptsKey(const COSXKeyEvent& event) override;

    /// Sent on only if the widget did not have the focus.
    bool OnFocusGained() override;

    /// Sent on only if the widget had it.
    bool OnFocusLost() override;

private:
    template <class Event>
    bool SendIfEnabled(bool (CKeyboardTarget::*operation)(const Event&), const Event& event);
    bool SetFocused(bool newFocused, bool (CKeyboardTarget::*operation)());

    const CLightWidget& widget;
    std::shared_ptr<CKeyboardTarget> target;
    bool focused = false;
    mutable Core::CEventProvider focusChanged;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
