#pragma once

#include "Mirel/GUI/Native/NativeEvents.h"
#include "Mirel/Graphics/Geometry.h"

#include <cstdint>
#include <string>

namespace Mirel::GUI
{

using Graphics::CRect;

/// The keys that change what other input means, as widgets number them.
enum class EModifierKey
{
    Alternate = 0,
    Shift = 1,
    Control = 2,
};

/// What every input event tells of those keys.
struct CModifierState
{
    std::uint32_t modifiers = 0; ///< ModifierFlags

    bool IsModifierDown(EModifierKey key) const;

    /// With the control, alternate or command key: a key means something to the host or the desktop then.
    bool IsShortcut() const;
};

/// A mouse event as a widget gets it.
struct COSXMouseEvent : public CModifierState
{
    CPoint position; ///< skin pixels from the widget's top left; may lie outside while the mouse is captured
    EMouseButton button = EMouseButton::None; ///< None unless a button went down or up
    int clickCount = 0;                       ///< as of SNativeMouseEvent
    CPoint screenPosition;                    ///< device pixels of the screen
};

/// The same event in the coordinates of another widget.
struct CTranslatedMouseEvent : public COSXMouseEvent
{
    /// origin is where the other widget's top left stands in the coordinates of the event.
    CTranslatedMouseEvent(const COSXMouseEvent& event, CPoint origin);
};

struct COSXMouseWheelEvent : public CModifierState
{
    CPoint position; ///< as of COSXMouseEvent
    CPoint screenPosition;
    float deltaY = 0.0F; ///< notches, positive away from the user
};

struct CTranslatedMouseWheelEvent : public COSXMouseWheelEvent
{
    CTranslatedMouseWheelEvent(const COSXMouseWheelEvent& event, CPoint origin);
};

struct COSXKeyEvent : public CModifierState
{
    ENativeKey key = ENativeKey::Character;
    std::uint32_t keyCode = 0; ///< of the hardware
    char32_t character = 0;    ///< what the key types without control, alternate and command; 0 for nothing
    std::string text;          ///< UTF-8, what the press types; empty for releases
    bool repeat = false;
    int count = 1; ///< presses that the event stands for
};

/// A key of EModifierKey, or its like, went down or up. The modifiers are those after the event.
struct COSXModifierKeyEvent : public CModifierState
{
    std::uint32_t previous = 0; ///< ModifierFlags before
};

} // namespace Mirel::GUI
