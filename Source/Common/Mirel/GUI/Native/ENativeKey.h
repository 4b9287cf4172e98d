#pragma once

namespace Mirel::GUI
{

/// What a key means, apart from the character it types. The numbers are those that widgets compare with.
enum class ENativeKey
{
    Character = 0, ///< types the event's text, if it types anything
    Return = 1,    ///< the keypad's Enter too
    Tab = 2,
    Backspace = 3,
    Delete = 4,
    Escape = 5,
    Insert = 6,
    Left = 7,
    Right = 8,
    Up = 9,
    Down = 10,
    PageUp = 11,
    PageDown = 12,
    Home = 13,
    End = 14,
    Menu = 15,
    Modifier = 16, ///< shift, control, alternate and their kin, on their own
    F1 = 17,       ///< F2 to F12 follow up to 28
    F12 = 28
};

} // namespace Mirel::GUI
