#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/ILightWidgetHost.h"

#include <memory>

namespace Mirel::GUI
{

/// The host of a tree of light widgets: a native-backed widget that paints the tree and feeds it input. It
/// and the root have one size. GUI thread only; handlers may destroy the adapter.
class CLightWidgetAdapter : public CWidget, public CWidgetEventsTarget, private ILightWidgetHost
{
public:
    class CInputManager;
    class CMouseTarget;
    class CKeyboardTarget;

    /// See SetLightRoot.
    explicit CLightWidgetAdapter(CLightWidget* root_ = nullptr, bool owned = false);
    ~CLightWidgetAdapter() override;

    /// The root gets the adapter's size, or an adapter without a size the root's. Null for none. One that has
    /// a parent or another host is ignored, and stays the caller's.
    void SetLightRoot(CLightWidget* newRoot, bool owned);
    CLightWidget* GetLightRoot() const override { return root.Get(); }

    /// Where the tree shows something; elsewhere the pointer reaches what lies beneath.
    bool HitTest(CPoint point) const override;

    /// The light widget that takes the mouse at a point in the adapter's coordinates; null if none does.
    CLightWidget* FindLight(CPoint point) const;

    CInputManager& GetInputManager() { return *input; }

    void OnDraw(const COSXNativeDrawEvent& event) override;
    void OnHide(const COSXOpenEvent& event) override;

protected:
    void OnResized() override;

private:
    void InvalidateLight(const CRect& rect) override;
    bool IsLightVisible() const override { return IsVisible(); }
    CWidget* GetHostWidget() override { return this; }
    void OnLightHidden(CLightWidget& widget) override;
    void OnLightRemoved(CLightWidget& widget) override;
    void OnLightDestroyed(CLightWidget& widget) override;
    void OnLightCursorChanged(CLightWidget& widget) override;
    void SetLightFocus(CLightWidget* widget) override;
    bool CaptureLightMouse(CLightWidget& widget) override;
    void ReleaseLightMouse(CLightWidget& widget) override;

    void LetRootGo();
    void OnRootResized() { SetSize(root->GetSize()); }

    Core::TOwnership<CLightWidget> root;
    Core::TCommand<CLightWidgetAdapter> onRootResized;
    std::unique_ptr<CInputManager> input;
    std::unique_ptr<CMouseTarget> lightMouse;
    std::unique_ptr<CKeyboardTarget> lightKeyboard;
};

} // namespace Mirel::GUI
