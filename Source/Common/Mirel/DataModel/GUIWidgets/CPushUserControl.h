#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/GUIWidgets/CPushableImageWidgetGraphics.h"
#include "Mirel/GUI/CKeyboardTarget.h"
#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CMouseTarget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// What the widgets that are pressed have in common: down with the left button or a key, up with its release.
/// The button is up while the pointer is elsewhere, and down again when it comes back with the mouse button
/// held. A press whose release will not come (the widget is hidden, disabled or loses the keys) ends without
/// effect. GUI thread. What a press does may destroy the widget.
class CPushUserControl : public GUI::CMouseTarget, public GUI::CKeyboardTarget
{
public:
    bool IsPushed() const { return graphics.IsPushed(); }

    /// Down or up. apply tells whether an up takes effect. Nothing if it stands so already.
    virtual void SetPushed(bool pushed, bool apply) = 0;

    /// Ends a press without effect.
    void Cancel();

    bool OnLeftDown(const GUI::COSXMouseEvent& event) override;
    bool OnLeftUp(const GUI::COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const GUI::COSXMouseEvent& event) override;
    bool OnMouseEnter(const GUI::COSXMouseEvent& event) override;
    bool OnMouseLeave(const GUI::COSXMouseEvent& event) override;
    void OnCaptureLost() override { Cancel(); }

    bool AcceptsKey(const GUI::COSXKeyEvent& event) override { return Pushes(event); }
    bool OnKeyDown(const GUI::COSXKeyEvent& event) override;
    bool OnKeyUp(const GUI::COSXKeyEvent& event) override;
    bool OnFocusLost() override;

protected:
    /// Neither is owned; both must outlive this object.
    CPushUserControl(GUI::CLightWidget& widget_, CPushableImageWidgetGraphics& graphics_);

    /// Before each press and release with the mouse.
    virtual void ReadModifiers(const GUI::CModifierState& /*event*/) {}

    /// Whether a press of the mouse is something else than a push, which then has been done.
    virtual bool TakesPress(const GUI::COSXMouseEvent& /*event*/) { return false; }

    /// Whether the key pushes while it is down.
    virtual bool Pushes(const GUI::COSXKeyEvent& event) const { return event.key == GUI::ENativeKey::Return; }

    CPushableImageWidgetGraphics& GetGraphics() const { return graphics; }
    GUI::CLightWidget& GetWidget() const { return widget; }
    const Core::CLifeToken& GetLifeToken() const { return life; }

private:
    void OnEnabledChanged();

    GUI::CLightWidget& widget;
    CPushableImageWidgetGraphics& graphics;
    bool wasPushed = false; ///< The button was down when the pointer left, and is still held.
    bool keyHeld = false;
    Core::TCommand<CPushUserControl> enabledChanged{this, &CPushUserControl::OnEnabledChanged};
    CoreUtilities::CCallbackHelper enabledConnection;
    Core::CLifeToken life;
};

/// The keys 7 to 12: arrows and page keys.
inline bool IsStepKey(GUI::ENativeKey key)
{
    return key >= GUI::ENativeKey::Left && key <= GUI::ENativeKey::PageDown;
}

} // namespace Mirel::DataModel::GUIWidgets
