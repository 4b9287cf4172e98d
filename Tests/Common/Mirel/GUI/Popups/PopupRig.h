#pragma once

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/Graphics/CFontManager.h"

#include <chrono>
#include <functional>

namespace Tests
{

/// The look with whatever face there is.
inline const Mirel::GUI::CPopupLook& TestLook()
{
    static Mirel::Graphics::CFontManager fonts("");
    static const Mirel::GUI::CPopupLook look = Mirel::GUI::MakePopupLook(fonts);
    return look;
}

/// Runs the loop until the claim holds; false after ten seconds without it.
inline bool PumpUntil(Mirel::GUI::CNativeRunLoop& loop, const std::function<bool()>& holds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!holds() && std::chrono::steady_clock::now() < end)
    {
        loop.Pump(10);
    }
    return holds();
}

/// A shown window in the middle of the screen, without a display, and the keys of the user in front of it.
class CPopupRig : public CWindowRig
{
public:
    explicit CPopupRig(int scale = 1) : CWindowRig({400, 300}, scale)
    {
        Native().SetPosition({1000, 1000});
        platform.MovePointer({1010, 1010});
    }

    void PressKey(Mirel::GUI::ENativeKey key)
    {
        Mirel::GUI::SNativeKeyEvent event;
        event.key = key;
        platform.PressKey(event);
    }

    void Type(const std::string& text)
    {
        for (const char letter : text)
        {
            Mirel::GUI::SNativeKeyEvent event;
            event.text = std::string(1, letter);
            event.character = static_cast<unsigned char>(letter);
            platform.PressKey(event);
        }
    }

    void PressShortcut(char letter)
    {
        platform.SetModifiers(Mirel::GUI::ModifierFlags::control);
        Mirel::GUI::SNativeKeyEvent event;
        event.character = static_cast<unsigned char>(letter);
        platform.PressKey(event);
        platform.SetModifiers(0);
    }

    /// Device pixels of the screen.
    void ClickAt(CPoint place)
    {
        platform.MovePointer(place);
        platform.PressButton(Button::Left);
        platform.ReleaseButton(Button::Left);
        Rest();
    }

    static CPoint MiddleOf(const CRect& rect) { return {rect.x + rect.width / 2, rect.y + rect.height / 2}; }
};

/// Whether any pixel of a window's picture has the colour.
inline bool Shows(const Mirel::GUI::COffscreenWindow& window, Mirel::Graphics::CColor color)
{
    const auto& picture = window.GetPicture();
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(picture.GetData());
    const int count = picture.GetSize().width * picture.GetSize().height;
    for (int i = 0; i < count; ++i)
    {
        if ((pixels[i] & 0xFFFFFFU) == color.Pack())
        {
            return true;
        }
    }
    return false;
}

} // namespace Tests
