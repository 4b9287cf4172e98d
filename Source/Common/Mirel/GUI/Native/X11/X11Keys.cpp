#include "Mirel/GUI/Native/X11/X11Keys.h"

#include "Mirel/GUI/Native/NativeEvents.h"

#include <algorithm>
#include <array>
#include <utility>
#include <xcb/xproto.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace Mirel::GUI
{

namespace
{
template <typename T, std::size_t size>
T Find(const std::array<std::pair<xkb_keysym_t, T>, size>& table, xkb_keysym_t symbol, T missing)
{
    const auto place = std::find_if(table.begin(), table.end(),
                                    [symbol](const auto& entry) { return entry.first == symbol; });
    return place != table.end() ? place->second : missing;
}

constexpr std::array<std::pair<xkb_keysym_t, ENativeKey>, 26> keys{{
    {XKB_KEY_Return, ENativeKey::Return},
    {XKB_KEY_KP_Enter, ENativeKey::Return},
    {XKB_KEY_Tab, ENativeKey::Tab},
    {XKB_KEY_ISO_Left_Tab, ENativeKey::Tab},
    {XKB_KEY_BackSpace, ENativeKey::Backspace},
    {XKB_KEY_Delete, ENativeKey::Delete},
    {XKB_KEY_KP_Delete, ENativeKey::Delete},
    {XKB_KEY_Escape, ENativeKey::Escape},
    {XKB_KEY_Insert, ENativeKey::Insert},
    {XKB_KEY_KP_Insert, ENativeKey::Insert},
    {XKB_KEY_Left, ENativeKey::Left},
    {XKB_KEY_KP_Left, ENativeKey::Left},
    {XKB_KEY_Right, ENativeKey::Right},
    {XKB_KEY_KP_Right, ENativeKey::Right},
    {XKB_KEY_Up, ENativeKey::Up},
    {XKB_KEY_KP_Up, ENativeKey::Up},
    {XKB_KEY_Down, ENativeKey::Down},
    {XKB_KEY_KP_Down, ENativeKey::Down},
    {XKB_KEY_Page_Up, ENativeKey::PageUp},
    {XKB_KEY_KP_Page_Up, ENativeKey::PageUp},
    {XKB_KEY_Page_Down, ENativeKey::PageDown},
    {XKB_KEY_KP_Page_Down, ENativeKey::PageDown},
    {XKB_KEY_Home, ENativeKey::Home},
    {XKB_KEY_KP_Home, ENativeKey::Home},
    {XKB_KEY_End, ENativeKey::End},
    {XKB_KEY_KP_End, ENativeKey::End},
}};

constexpr std::array<std::pair<xkb_keysym_t, std::uint32_t>, 10> modifiers{{
    {XKB_KEY_Shift_L, ModifierFlags::shift},
    {XKB_KEY_Shift_R, ModifierFlags::shift},
    {XKB_KEY_Control_L, ModifierFlags::control},
    {XKB_KEY_Control_R, ModifierFlags::control},
    {XKB_KEY_Alt_L, ModifierFlags::alternate},
    {XKB_KEY_Alt_R, ModifierFlags::alternate},
    {XKB_KEY_Meta_L, ModifierFlags::alternate},
    {XKB_KEY_Meta_R, ModifierFlags::alternate},
    {XKB_KEY_Super_L, ModifierFlags::command},
    {XKB_KEY_Super_R, ModifierFlags::command},
}};

bool IsLockOrLevel(xkb_keysym_t symbol)
{
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R) || symbol == XKB_KEY_Num_Lock ||
           symbol == XKB_KEY_Scroll_Lock || symbol == XKB_KEY_Mode_switch ||
           (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock);
}
} // namespace

ENativeKey KeyOfSymbol(xkb_keysym_t symbol)
{
    if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F12)
    {
        return static_cast<ENativeKey>(static_cast<int>(ENativeKey::F1) +
                                       static_cast<int>(symbol - XKB_KEY_F1));
    }
    if (IsLockOrLevel(symbol))
    {
        return ENativeKey::Modifier;
    }
    return symbol == XKB_KEY_Menu ? ENativeKey::Menu : Find(keys, symbol, ENativeKey::Character);
}

std::uint32_t ModifierOfSymbol(xkb_keysym_t symbol)
{
    return Find(modifiers, symbol, std::uint32_t{0});
}

std::uint32_t ModifiersOfState(std::uint32_t state)
{
    constexpr std::array<std::pair<std::uint32_t, std::uint32_t>, 5> bits{{
        {XCB_MOD_MASK_SHIFT, ModifierFlags::shift},
        {XCB_MOD_MASK_LOCK, ModifierFlags::capsLock},
        {XCB_MOD_MASK_CONTROL, ModifierFlags::control},
        {XCB_MOD_MASK_1, ModifierFlags::alternate},
        {XCB_MOD_MASK_4, ModifierFlags::command},
    }};
    std::uint32_t flags = 0;
    for (const auto& [bit, flag] : bits)
    {
        flags |= (state & bit) != 0 ? flag : 0;
    }
    return flags;
}

bool BeginsSequence(xkb_keysym_t symbol)
{
    return symbol == XKB_KEY_Multi_key ||
           (symbol >= XKB_KEY_dead_grave && symbol <= XKB_KEY_dead_longsolidusoverlay);
}

} // namespace Mirel::GUI
