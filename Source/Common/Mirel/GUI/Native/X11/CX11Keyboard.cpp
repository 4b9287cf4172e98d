#include "Mirel/GUI/Native/X11/CX11Keyboard.h"

#include "Mirel/GUI/Native/X11/X11Keys.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <xkbcommon/xkbcommon-x11.h>

#define explicit explicit_ // a field's name there
#include <xcb/xkb.h>
#undef explicit

namespace Mirel::GUI
{

namespace
{
constexpr std::uint32_t modifierBits = 0xFF;
constexpr unsigned layoutShift = 13; ///< where the state of an event keeps the layout
constexpr std::uint32_t layoutMask = 3;

/// What keeps a key from typing.
constexpr std::uint32_t shortcut = ModifierFlags::control | ModifierFlags::alternate | ModifierFlags::command;

/// The state bits that choose among the characters of a key: all but those of shortcuts.
constexpr std::uint32_t levelBits =
    modifierBits & ~static_cast<std::uint32_t>(XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4);

/// The locale of typed characters. Sequences are only of use in UTF-8; a locale without it types as English.
std::string FindLocale()
{
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"})
    {
        const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nothing here sets any
        if (value != nullptr && *value != '\0')
        {
            std::string upper(value);
            std::transform(upper.begin(), upper.end(), upper.begin(),
                           [](char c)
                           { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
            const bool isUtf8 =
                upper.find("UTF-8") != std::string::npos || upper.find("UTF8") != std::string::npos;
            const bool isPlain = upper.rfind("C.", 0) == 0; // UTF-8, but without sequences
            return isUtf8 && !isPlain ? value : "en_US.UTF-8";
        }
    }
    return "en_US.UTF-8";
}

bool IsControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}
} // namespace

CX11Keyboard::CX11Keyboard(CX11Connection& connection_)
    : connection(connection_),
      context(xkb_context_new(XKB_CONTEXT_NO_FLAGS))
{
    const CX11Scope scope(connection);
    const int isThere = xkb_x11_setup_xkb_extension(
        connection.Get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
        XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr);
    if (isThere == 0)
    {
        firstEvent = 0;
        return;
    }
    Listen();
}

void CX11Keyboard::Listen()
{
    const auto events =
        static_cast<std::uint16_t>(XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY);
    const auto core = static_cast<xcb_xkb_device_spec_t>(XCB_XKB_ID_USE_CORE_KBD);
    xcb_xkb_select_events(connection.Get(), core, events, 0, events, 0, 0, nullptr);
    // A held key then repeats as presses alone.
    const std::uint32_t repeats = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection.Get(), core, repeats, repeats, 0, 0, 0);
    const TX11Pointer<xcb_xkb_per_client_flags_reply_t> reply(
        xcb_xkb_per_client_flags_reply(connection.Get(), cookie, nullptr));
}

bool CX11Keyboard::HandleEvent(const xcb_generic_event_t& event)
{
    if (firstEvent == 0 || (event.response_type & 0x7F) != firstEvent)
    {
        return (event.response_type & 0x7F) == XCB_MAPPING_NOTIFY;
    }
    isStale = true; // Changes come in swarms; the next key asks once.
    return true;
}

void CX11Keyboard::Load()
{
    if (!isStale && keyState != nullptr)
    {
        return;
    }
    isStale = false;
    const CX11Scope scope(connection);
    const std::int32_t device = firstEvent != 0 ? xkb_x11_get_core_keyboard_device_id(connection.Get()) : -1;
    keymap.reset(device == -1 ? nullptr
                              : xkb_x11_keymap_new_from_device(context.get(), connection.Get(), device,
                                                               XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (keymap == nullptr)
    {
        keymap.reset(xkb_keymap_new_from_names(context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS));
    }
    keyState.reset(keymap != nullptr ? xkb_state_new(keymap.get()) : nullptr);
}

void CX11Keyboard::LoadSequences()
{
    if (hasSequences)
    {
        return;
    }
    hasSequences = true;
    table.reset(
        xkb_compose_table_new_from_locale(context.get(), FindLocale().c_str(), XKB_COMPOSE_COMPILE_NO_FLAGS));
    if (table == nullptr)
    {
        table.reset(
            xkb_compose_table_new_from_locale(context.get(), "en_US.UTF-8", XKB_COMPOSE_COMPILE_NO_FLAGS));
    }
    sequence.reset(table != nullptr ? xkb_compose_state_new(table.get(), XKB_COMPOSE_STATE_NO_FLAGS)
                                    : nullptr);
}

SNativeKeyEvent CX11Keyboard::Translate(const xcb_key_press_event_t& event, xkb_keysym_t& symbol)
{
    SNativeKeyEvent made;
    made.keyCode = event.detail;
    made.timeMs = event.time;
    made.modifiers = ModifiersOfState(event.state);
    Load();
    if (keyState == nullptr)
    {
        return made;
    }
    made.character = FindCharacter(event.detail, event.state, made.modifiers);
    // The event tells all that chooses a key's symbol, as it was at that moment.
    xkb_state_update_mask(keyState.get(), event.state & modifierBits, 0, 0,
                          (event.state >> layoutShift) & layoutMask, 0, 0);
    symbol = xkb_state_key_get_one_sym(keyState.get(), event.detail);
    made.key = KeyOfSymbol(symbol);
    return made;
}

char32_t CX11Keyboard::FindCharacter(xkb_keycode_t code, std::uint32_t state, std::uint32_t modifiers)
{
    const std::uint32_t layout = (state >> layoutShift) & layoutMask;
    const auto find = [&](std::uint32_t wanted)
    {
        xkb_state_update_mask(keyState.get(), state & levelBits, 0, 0, wanted, 0, 0);
        const char32_t character = xkb_state_key_get_utf32(keyState.get(), code);
        return IsControl(character) ? 0 : character;
    };
    const char32_t character = find(layout);
    // Shortcuts are Latin letters, on whatever layout the keyboard has them.
    constexpr char32_t beyondLatin = 0x250;
    for (xkb_layout_index_t other = 0; (modifiers & shortcut) != 0 && character >= beyondLatin &&
                                       other < xkb_keymap_num_layouts(keymap.get());
         ++other)
    {
        const char32_t latin = find(other);
        if (latin != 0 && latin < beyondLatin)
        {
            return latin;
        }
    }
    return character;
}

bool CX11Keyboard::FeedSequence(xkb_keysym_t symbol, std::string& text)
{
    if (BeginsSequence(symbol))
    {
        LoadSequences();
    }
    if (sequence == nullptr || xkb_compose_state_feed(sequence.get(), symbol) == XKB_COMPOSE_FEED_IGNORED)
    {
        return false;
    }
    const xkb_compose_status status = xkb_compose_state_get_status(sequence.get());
    if (status == XKB_COMPOSE_COMPOSED)
    {
        std::array<char, 64> composed{};
        xkb_compose_state_get_utf8(sequence.get(), composed.data(), composed.size());
        text = composed.data();
    }
    if (status == XKB_COMPOSE_COMPOSED || status == XKB_COMPOSE_CANCELLED)
    {
        xkb_compose_state_reset(sequence.get());
    }
    return status != XKB_COMPOSE_NOTHING;
}

void CX11Keyboard::Type(SNativeKeyEvent& event, xkb_keycode_t code, xkb_keysym_t symbol)
{
    if ((event.modifiers & shortcut) != 0)
    {
        return;
    }
    if (FeedSequence(symbol, event.text))
    {
        event.character = 0; // The key is a part of the sequence and stands for nothing by itself.
        return;
    }
    std::array<char, 16> typed{};
    const int length = xkb_state_key_get_utf8(keyState.get(), code, typed.data(), typed.size());
    if (length > 0 && !IsControl(xkb_state_key_get_utf32(keyState.get(), code)))
    {
        event.text = typed.data();
    }
}

std::uint32_t CX11Keyboard::ModifiersAfter(std::uint32_t before, xkb_keycode_t code, xkb_keysym_t symbol,
                                           bool isDown) const
{
    const std::uint32_t bit = ModifierOfSymbol(symbol);
    const bool isHeld =
        isDown || std::any_of(down.begin(), down.end(),
                              [&](const auto& key) { return key.first != code && key.second == bit; });
    return isHeld ? before | bit : before & ~bit;
}

SNativeKeyEvent CX11Keyboard::Press(const xcb_key_press_event_t& event)
{
    xkb_keysym_t symbol = XKB_KEY_NoSymbol;
    SNativeKeyEvent made = Translate(event, symbol);
    if (keyState != nullptr && made.key != ENativeKey::Modifier)
    {
        Type(made, event.detail, symbol);
    }
    made.modifiers = ModifiersAfter(made.modifiers, event.detail, symbol, true);
    made.repeat = !down.emplace(event.detail, ModifierOfSymbol(symbol)).second;
    return made;
}

SNativeKeyEvent CX11Keyboard::Release(const xcb_key_release_event_t& event)
{
    xkb_keysym_t symbol = XKB_KEY_NoSymbol;
    SNativeKeyEvent made = Translate(event, symbol);
    made.modifiers = ModifiersAfter(made.modifiers, event.detail, symbol, false);
    down.erase(event.detail);
    return made;
}

void CX11Keyboard::Forget()
{
    down.clear();
    if (sequence != nullptr)
    {
        xkb_compose_state_reset(sequence.get());
    }
}

} // namespace Mirel::GUI
