#include "Mirel/GUI/CLightWidgetAdapter.h"

#include "Mirel/GUI/CInputManager.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/GUI/FindWidget.h"
#include "Mirel/GUI/LightTargets.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

namespace Mirel::GUI
{

CLightWidgetAdapter::CLightWidgetAdapter(CLightWidget* root_, bool owned)
    : onRootResized(this, &CLightWidgetAdapter::OnRootResized),
      input(std::make_unique<CInputManager>(*this)),
      lightMouse(std::make_unique<CMouseTarget>(*input)),
      lightKeyboard(std::make_unique<CKeyboardTarget>(*input))
{
    SetMouseTarget(lightMouse.get(), false);
    SetKeyboardTarget(lightKeyboard.get(), false);
    // The keys follow the light widgets that want them.
    SetFocusOnClick(false);
    AddEventsTarget(this);
    SetLightRoot(root_, owned);
}

CLightWidgetAdapter::~CLightWidgetAdapter()
{
    RemoveEventsTarget(this);
    LetRootGo();
}

void CLightWidgetAdapter::SetLightRoot(CLightWidget* newRoot, bool owned)
{
    if (newRoot != nullptr && newRoot == root.Get())
    {
        root.Set(newRoot, owned);
        return;
    }
    if (newRoot != nullptr && (newRoot->GetParent() != nullptr || newRoot->GetHost() != nullptr))
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(GetLifeToken());
    LetRootGo();
    if (!watch.IsAlive() || newRoot == nullptr)
    {
        return;
    }
    root.Set(newRoot, owned);
    root->SetHost(this);
    if (GetSize().IsEmpty())
    {
        SetSize(root->GetSize());
    }
    else
    {
        root->SetSize(GetSize());
    }
    root->GetSizeChangedEvent().Connect(onRootResized);
    Invalidate();
}

bool CLightWidgetAdapter::HitTest(CPoint point) const
{
    return root && root->IsShown() && CWidget::HitTest(point) &&
           root->GetRecursiveGraphics().HitTest(Minus(point, root->GetPosition()));
}

CLightWidget* CLightWidgetAdapter::FindLight(CPoint point) const
{
    return root && IsVisible() ? FindLightWidget(*root, Minus(point, root->GetPosition())) : nullptr;
}

void CLightWidgetAdapter::OnDraw(const COSXNativeDrawEvent& event)
{
    if (!root || !root->IsShown())
    {
        return;
    }
    const CPoint origin = root->GetPosition();
    const CRect seen = Intersect(event.region.GetBounds(), {origin, root->GetSize()});
    const Graphics::CSimple2DRegion region(Minus(seen, origin));
    event.surface.Translate(origin);
    root->GetRecursiveGraphics().Draw(event.surface, &region);
}

void CLightWidgetAdapter::OnHide(const COSXOpenEvent& /*event*/)
{
    if (root)
    {
        input->OnHidden(*root);
    }
}

void CLightWidgetAdapter::OnResized()
{
    if (root)
    {
        root->SetSize(GetSize());
    }
    CWidget::OnResized();
}

void CLightWidgetAdapter::InvalidateLight(const CRect& rect)
{
    InvalidateRect(Plus(rect, root->GetPosition()));
}

void CLightWidgetAdapter::OnLightHidden(CLightWidget& widget)
{
    input->OnHidden(widget);
}

void CLightWidgetAdapter::OnLightRemoved(CLightWidget& widget)
{
    input->Forget(widget, true);
}

void CLightWidgetAdapter::OnLightDestroyed(CLightWidget& widget)
{
    input->Forget(widget, false);
    if (&widget == root.Get())
    {
        root->GetSizeChangedEvent().Disconnect(&onRootResized);
        // It is being destroyed already.
        root.Set(&widget, false);
        root.Set(nullptr, false);
        widget.SetHost(nullptr);
        Invalidate();
    }
}

void CLightWidgetAdapter::OnLightCursorChanged(CLightWidget& /*widget*/)
{
    if (CWindowBase* const window = GetWindow(); window != nullptr)
    {
        window->OnCursorChanged();
    }
}

void CLightWidgetAdapter::SetLightFocus(CLightWidget* widget)
{
    input->SetFocus(widget);
}

bool CLightWidgetAdapter::CaptureLightMouse(CLightWidget& widget)
{
    return input->Capture(widget);
}

void CLightWidgetAdapter::ReleaseLightMouse(CLightWidget& widget)
{
    input->Release(widget);
}

void CLightWidgetAdapter::LetRootGo()
{
    CLightWidget* const old = root.Get();
    if (old == nullptr)
    {
        return;
    }
    Invalidate();
    const bool owned = root.IsOwned();
    old->GetSizeChangedEvent().Disconnect(&onRootResized);
    root.Set(old, false);
    root.Set(nullptr, false);
    old->SetHost(nullptr);
    const Core::CLifeToken::CWatch watch(old->GetLifeToken());
    input->Forget(*old, true);
    if (owned && watch.IsAlive())
    {
        delete old;
    }
}

} // namespace Mirel::GUI
