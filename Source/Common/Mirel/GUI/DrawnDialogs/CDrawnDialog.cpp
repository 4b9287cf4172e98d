#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"

#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/GUI/Popups/PopupPlacing.h"
#include "Mirel/Graphics/CColorDrawer.h"

namespace Mirel::GUI
{

namespace
{

CRect GetOwnerFrame(const INativePlatform& platform, const SDialogOwner& owner)
{
    const INativeWindow* const window = owner.window == nullptr ? nullptr : owner.window->GetNativeWindow();
    return window == nullptr ? platform.GetScreens().front().workArea
                             : CRect(window->GetScreenPosition(), window->GetSize());
}

SNativeWindowOptions MakeOptions(const INativePlatform& platform, const std::string& title, CSize size,
                                 const SDialogOwner& owner, bool isResizable, std::optional<CPoint> place)
{
    const int scale = platform.GetScale();
    SNativeWindowOptions options;
    options.kind = ENativeWindowKind::Dialog;
    options.size = {size.width * scale, size.height * scale};
    options.owner = owner.window == nullptr ? nullptr : owner.window->GetNativeWindow();
    options.foreignOwner = owner.id;
    options.title = title;
    options.isResizable = isResizable;
    options.isPlaced = place.has_value() || owner.window != nullptr || owner.id == 0;
    const CRect around = GetOwnerFrame(platform, owner);
    const CPoint middle = {around.x + (around.width - options.size.width) / 2,
                           around.y + (around.height - options.size.height) / 2};
    const CPoint wanted = place.value_or(middle);
    options.position = MoveInside(CRect(wanted, options.size), FindPopupArea(platform, wanted)).GetOrigin();
    return options;
}

/// A dialog stands out from the window below it where no window manager frames it.
class CFramedGround : public Graphics::CColorDrawer
{
public:
    explicit CFramedGround(const CPopupLook& look) : CColorDrawer(look.background), border(look.border) {}

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override
    {
        CColorDrawer::Draw(surface, region);
        DrawFrame(surface, {CPoint(), GetSize()}, border);
    }

private:
    Graphics::CColor border;
};

} // namespace

/// Gets the keys that the focused widget does not accept.
class CDrawnDialog::CKeys : public CKeyboardTarget
{
public:
    explicit CKeys(CDrawnDialog& dialog_) : dialog(dialog_) {}

    bool AcceptsKey(const COSXKeyEvent& /*event*/) override { return true; }
    bool OnKeyDown(const COSXKeyEvent& event) override { return dialog.OnUnusedKey(event); }

private:
    CDrawnDialog& dialog;
};

CDrawnDialog::CDrawnDialog(INativePlatform& platform_, const CPopupLook& look_, const std::string& title,
                           CSize size, const SDialogOwner& owner_, bool isResizable,
                           std::optional<CPoint> place)
    : CWindow(platform_, MakeOptions(platform_, title, size, owner_, isResizable, place)),
      popupLook(look_),
      owner(owner_),
      content(new CWidget()),
      adapter(new CLightWidgetAdapter()),
      root(new CLightWidget()),
      onResized(this, &CDrawnDialog::OnSizeChanged)
{
    root->SetGraphics(new CFramedGround(popupLook), true);
    adapter->SetSize(size);
    adapter->SetLightRoot(root, true);
    content->AddChild(adapter, true);
    content->SetKeyboardTarget(new CKeys(*this), true);
    content->SetFocusOnClick(false);
    SetContent(content, true);
    content->Show(true);
    adapter->Show(true);
    adapter->SetSize(GetSize());
    GetResizedEvent().Connect(onResized);
}

CDrawnDialog::~CDrawnDialog()
{
    GetResizedEvent().Disconnect(&onResized);
    SetContent(nullptr, false);
    if (ownerWatch != nullptr && ownerWatch->IsAlive())
    {
        owner.window->SetInputBlocked(false);
        if (hadKeys)
        {
            owner.window->TakeNativeFocus();
        }
    }
}

bool CDrawnDialog::Open()
{
    if (GetNativeWindow() == nullptr)
    {
        return false;
    }
    Block();
    OnLayout(GetSize());
    Show(true);
    adapter->SetFocus();
    if (firstFocus != nullptr)
    {
        firstFocus->SetFocus();
    }
    return true;
}

void CDrawnDialog::Block()
{
    if (owner.window != nullptr && ownerWatch == nullptr)
    {
        ownerWatch = std::make_unique<Core::CLifeToken::CWatch>(owner.window->GetLifeToken());
        hadKeys = owner.window->GetNativeWindow() != nullptr && owner.window->GetNativeWindow()->HasFocus();
        owner.window->SetInputBlocked(true);
    }
}

bool CDrawnDialog::OnUnusedKey(const COSXKeyEvent& event)
{
    if (event.key == ENativeKey::Escape)
    {
        OnGiveUp();
        return true;
    }
    return OnSpareKey(event);
}

void CDrawnDialog::OnSizeChanged()
{
    adapter->SetSize(GetSize());
    OnLayout(GetSize());
}

} // namespace Mirel::GUI
