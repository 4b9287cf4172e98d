#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/GUI/Native/ENativeKey.h"

#include <cstdint>
#include <string>

namespace Mirel::GUI
{

using Core::CPoint;
using Core::CSize;

/// Bits of a modifier state.
namespace ModifierFlags
{
constexpr std::uint32_t capsLock = 0x10000;
constexpr std::uint32_t shift = 0x20000;
constexpr std::uint32_t control = 0x40000;
constexpr std::uint32_t alternate = 0x80000;
constexpr std::uint32_t command = 0x100000;
} // namespace ModifierFlags

enum class EMouseButton
{
    None, ///< in motion, enter and leave events
    Left,
    Right,
    Middle,
    Other ///< back, forward and whatever else a mouse has
};

/// Bits of a set of pressed buttons.
constexpr std::uint32_t ButtonFlag(EMouseButton button)
{
    return button == EMouseButton::None ? 0U : 1U << (static_cast<unsigned>(button) - 1U);
}

/// Motion, enter, leave, a button's press or release.
struct SNativeMouseEvent
{
    CPoint position;       ///< device pixels from the window's top left; may lie outside during a capture
    CPoint screenPosition; ///< the same place in device pixels of the screen
    EMouseButton button = EMouseButton::None;

    /// Presses of the same button in quick succession at one place, this one included; a release has the
    /// count of its press; 0 for motion, enter and leave.
    int clickCount = 0;
    std::uint32_t buttons = 0;   ///< ButtonFlag of all that are down after the event
    std::uint32_t modifiers = 0; ///< ModifierFlags
    std::uint64_t timeMs = 0;    ///< of the display's clock; 0 if it told none
};

struct SNativeWheelEvent
{
    CPoint position; ///< as of SNativeMouseEvent
    CPoint screenPosition;
    double deltaX = 0.0; ///< notches; positive to the left
    double deltaY = 0.0; ///< notches; positive away from the user
    std::uint32_t modifiers = 0;
    std::uint64_t timeMs = 0;
};

struct SNativeKeyEvent
{
    ENativeKey key = ENativeKey::Character;
    std::uint32_t keyCode = 0; ///< of the hardware, for telling keys apart

    /// What the key would type without the control, alternate and command keys, as Unicode; 0 if nothing, and
    /// within a compose sequence. For shortcuts: control and C is 'c' here.
    char32_t character = 0;

    /// What the press types, UTF-8, after compose sequences; empty for releases, shortcuts and the keys that
    /// type nothing. Control characters (return, tab, escape, ...) are never in it.
    std::string text;
    std::uint32_t modifiers = 0; ///< as they are after the event
    bool repeat = false;         ///< the key was down already
    int count = 1;               ///< presses that this event stands for
    std::uint64_t timeMs = 0;
};

} // namespace Mirel::GUI
