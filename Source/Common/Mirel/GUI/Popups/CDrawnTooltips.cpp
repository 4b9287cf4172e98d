#include "Mirel/GUI/Popups/CDrawnTooltips.h"

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Popups/CTooltipGraphics.h"
#include "Mirel/GUI/Popups/PopupPlacing.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int leavePeriodMs = 150;

} // namespace

class CDrawnTooltips::CTipWindow : public CPopupWindow
{
public:
    CTipWindow(INativePlatform& platform_, const CRect& frame_, const INativeWindow* owner,
               const STooltip& tip_, const CPopupLook& look_)
        : CPopupWindow(platform_, ENativeWindowKind::Tooltip, frame_, owner),
          graphics(std::make_unique<CTooltipGraphics>(tip_, look_))
    {
    }

    void SetTip(const CRect& newFrame, const STooltip& tip_, const CPopupLook& look_)
    {
        graphics = std::make_unique<CTooltipGraphics>(tip_, look_);
        SetFrame(newFrame);
        Invalidate();
    }

protected:
    void Draw(Graphics::CDrawSurface& surface) override { graphics->Draw(surface, nullptr); }

private:
    std::unique_ptr<CTooltipGraphics> graphics;
};

CDrawnTooltips::CDrawnTooltips(INativePlatform& platform_, const CPopupLook& look_)
    : platform(platform_),
      look(look_)
{
}

CDrawnTooltips::~CDrawnTooltips()
{
    CDrawnTooltips::Hide();
}

void CDrawnTooltips::Show(const std::string& text, const INativeWindow& owner_, CPoint screenPosition)
{
    STooltip plain;
    plain.text = text;
    plain.delayMs = 0;
    plain.showTimeMs = 0;
    ShowTip(plain, owner_, screenPosition);
}

void CDrawnTooltips::Hide()
{
    for (std::uint64_t* running : {&timer, &leaveTimer})
    {
        if (*running != 0)
        {
            platform.GetRunLoop().RemoveTimer(std::exchange(*running, 0));
        }
    }
    window.reset();
    owner = nullptr;
}

void CDrawnTooltips::ShowTip(const STooltip& tip_, const INativeWindow& owner_, CPoint screenPosition)
{
    Hide();
    if (tip_.text.empty())
    {
        return;
    }
    tip = tip_;
    owner = &owner_;
    if (tip.delayMs > 0)
    {
        Wait(tip.delayMs, &CDrawnTooltips::OpenAtPointer);
    }
    else
    {
        OpenAt(screenPosition);
    }
}

void CDrawnTooltips::Wait(int milliseconds, void (CDrawnTooltips::*then)())
{
    timer = platform.GetRunLoop().AddTimer(milliseconds,
                                           [this, then]
                                           {
                                               platform.GetRunLoop().RemoveTimer(std::exchange(timer, 0));
                                               (this->*then)();
                                           });
}

void CDrawnTooltips::OpenAt(CPoint screenPosition)
{
    place = screenPosition;
    window = std::make_unique<CTipWindow>(platform, GetFrame(), owner, tip, look);
    if (!window->Show())
    {
        Hide();
        return;
    }
    if (!tip.isForPress)
    {
        leaveTimer = platform.GetRunLoop().AddTimer(leavePeriodMs, [this] { HideIfLeft(); });
    }
    LimitTime();
}

void CDrawnTooltips::SetTipText(const std::string& text)
{
    if (owner == nullptr || text == tip.text)
    {
        return;
    }
    if (text.empty())
    {
        Hide();
        return;
    }
    tip.text = text;
    if (window != nullptr)
    {
        window->SetTip(GetFrame(), tip, look);
        LimitTime();
    }
}

const CPopupWindow* CDrawnTooltips::GetWindow() const
{
    return window.get();
}

CRect CDrawnTooltips::GetFrame() const
{
    const int scale = platform.GetScale();
    const CSize size = CTooltipGraphics(tip, look).GetSize();
    return PlaceTooltip(place, {size.width * scale, size.height * scale}, FindPopupArea(platform, place),
                        scale);
}

void CDrawnTooltips::LimitTime()
{
    if (timer != 0)
    {
        platform.GetRunLoop().RemoveTimer(std::exchange(timer, 0));
    }
    if (tip.showTimeMs > 0)
    {
        Wait(tip.showTimeMs, &CDrawnTooltips::Hide);
    }
}

/// Windows are not always told when the pointer leaves them.
void CDrawnTooltips::HideIfLeft()
{
    const CRect around = {owner->GetScreenPosition(), owner->GetSize()};
    if (!owner->IsShown() || !around.Contains(platform.GetPointerPosition()))
    {
        Hide();
    }
}

} // namespace Mirel::GUI
