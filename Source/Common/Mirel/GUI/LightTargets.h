#pragma once

#include "Mirel/GUI/CInputManager.h"

namespace Mirel::GUI
{

/// Hands an adapter's mouse events to its input manager. GUI thread only.
class CLightWidgetAdapter::CMouseTarget : public GUI::CMouseTarget
{
public:
    explicit CMouseTarget(CInputManager& input_) : input(input_) {}

    bool OnLeftDown(const COSXMouseEvent& event) override { return input.OnDown(EButton::Left, event); }
    bool OnLeftUp(const COSXMouseEvent& event) override { return input.OnUp(EButton::Left, event); }
    bool OnLeftClick(const COSXMouseEvent& event) override
    {
        return input.OnClick(EButton::Left, false, event);
    }
    bool OnLeftDoubleClick(const COSXMouseEvent& event) override
    {
        return input.OnClick(EButton::Left, true, event);
    }
    bool OnRightDown(const COSXMouseEvent& event) override { return input.OnDown(EButton::Right, event); }
    bool OnRightUp(const COSXMouseEvent& event) override { return input.OnUp(EButton::Right, event); }
    bool OnRightClick(const COSXMouseEvent& event) override
    {
        return input.OnClick(EButton::Right, false, event);
    }
    bool OnRightDoubleClick(const COSXMouseEvent& event) override
    {
        return input.OnClick(EButton::Right, true, event);
    }
    bool OnMouseMove(const COSXMouseEvent& event) override { return input.OnMove(event); }
    bool OnCursorUpdate(const COSXMouseEvent& event) override { return input.OnCursorUpdate(event); }
    bool OnMouseLeave(const COSXMouseEvent& event) override { return input.OnHostLeave(event); }
    bool OnMouseDrag(const COSXMouseEvent& event) override { return input.OnDrag(event); }
    bool OnMouseWheel(const COSXMouseWheelEvent& event) override { return input.OnWheel(event); }
    void OnCaptureLost() override { input.OnCaptureLost(); }

private:
    using EButton = CInputManager::EButton;

    CInputManager& input;
};

/// Hands an adapter's keys to the light widget that has the focus; without one nothing is handled. GUI thread
/// only.
class CLightWidgetAdapter::CKeyboardTarget : public GUI::CKeyboardTarget
{
public:
    explicit CKeyboardTarget(CInputManager& input_) : input(input_) {}

    bool OnKeyDown(const COSXKeyEvent& event) override { return HasTarget() && GetTarget().OnKeyDown(event); }
    bool OnKeyUp(const COSXKeyEvent& event) override { return HasTarget() && GetTarget().OnKeyUp(event); }
    bool OnModifierChanged(const COSXModifierKeyEvent& event) override
    {
        return HasTarget() && GetTarget().OnModifierChanged(event);
    }
    bool AcceptsKey(const COSXKeyEvent& event) override
    {
        return HasTarget() && GetTarget().AcceptsKey(event);
    }
    bool OnFocusGained() override { return input.OnHostFocus(true); }
    bool OnFocusLost() override { return input.OnHostFocus(false); }

private:
    bool HasTarget() const { return input.GetFocus() != nullptr && input.GetFocus()->IsVisible(); }
    CLightKeyboardTarget& GetTarget() const { return input.GetFocus()->GetInnerKeyboardTarget(); }

    CInputManager& input;
};

} // namespace Mirel::GUI
