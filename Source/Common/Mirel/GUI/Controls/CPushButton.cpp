#include "Mirel/GUI/Controls/CPushButton.h"

#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

CPushButton::CPushButton(CLightWidget* parent_, const CPopupLook& look_, std::string text_,
                         std::function<void()> pushed_)
    : CDrawnControl(parent_, look_),
      text(std::move(text_)),
      pushed(std::move(pushed_))
{
    SetSize(GetNaturalSize());
}

void CPushButton::SetText(const std::string& newText)
{
    if (newText != text)
    {
        text = newText;
        Invalidate();
    }
}

void CPushButton::SetDefault(bool newDefault)
{
    isDefault = newDefault;
    Invalidate();
}

void CPushButton::SetHasMenu(bool newHasMenu)
{
    hasMenu = newHasMenu;
    Invalidate();
}

CSize CPushButton::GetNaturalSize() const
{
    constexpr int smallestWidth = 76;
    constexpr int padding = 14;
    constexpr int verticalPadding = 6;
    const CSize size = MeasureText(GetLook().font, text);
    return {std::max(size.width + 2 * padding, smallestWidth),
            GetLineHeight(GetLook().font) + 2 * verticalPadding};
}

void CPushButton::Push()
{
    if (IsEnabled() && pushed)
    {
        const auto call = pushed; // The button may go.
        call();
    }
}

void CPushButton::Paint(Graphics::CDrawSurface& surface, CSize size)
{
    constexpr int arrowSpace = 18;
    const CPopupLook& look = GetLook();
    const bool isPushed = isDown && IsMouseOver();
    const bool isLit = isDefault && !isPushed;
    const Graphics::CColor face = isPushed ? look.field : IsMouseOver() ? look.buttonHover : look.button;
    surface.SetFillColor(face);
    surface.FillRect({CPoint(), size});
    DrawFrame(surface, {CPoint(), size}, HasFocus() || isLit ? look.accent : look.border);
    if (HasFocus())
    {
        DrawFrame(surface, {2, 2, size.width - 4, size.height - 4}, look.accent);
    }
    const Graphics::CColor color = IsEnabled() ? look.text : look.disabledText;
    const int left = hasMenu ? 8 : 4;
    const CRect inner = {left, isPushed ? 1 : 0, size.width - left - (hasMenu ? arrowSpace : 4), size.height};
    DrawLabel(surface, look.font, text, inner, color,
              hasMenu ? Graphics::ETextHAlign::Left : Graphics::ETextHAlign::Center);
    if (hasMenu)
    {
        DrawArrow(surface, {size.width - arrowSpace + 3, size.height / 2 - 2}, EArrow::Down, color);
    }
}

bool CPushButton::OnLeftDown(const COSXMouseEvent& /*event*/)
{
    isDown = true;
    Invalidate();
    return true;
}

bool CPushButton::OnLeftUp(const COSXMouseEvent& /*event*/)
{
    OnCaptureLost();
    return true;
}

bool CPushButton::OnLeftClick(const COSXMouseEvent& /*event*/)
{
    Push();
    return true;
}

void CPushButton::OnCaptureLost()
{
    isDown = false;
    Invalidate();
}

bool CPushButton::AcceptsKey(const COSXKeyEvent& event)
{
    return event.key == ENativeKey::Return || event.text == " ";
}

bool CPushButton::OnKeyDown(const COSXKeyEvent& event)
{
    if (!event.repeat)
    {
        Push();
    }
    return true;
}

} // namespace Mirel::GUI
