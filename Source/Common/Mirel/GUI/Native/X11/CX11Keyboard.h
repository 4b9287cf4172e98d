#pragma once

#include "Mirel/GUI/Native/NativeEvents.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-compose.h>
#include <xkbcommon/xkbcommon.h>

namespace Mirel::GUI
{

/// Turns the server's key events into keys, characters and text, by its keymap and the user's compose
/// sequences. GUI thread only.
class CX11Keyboard
{
public:
    explicit CX11Keyboard(CX11Connection& connection_);
    CX11Keyboard(const CX11Keyboard&) = delete;
    CX11Keyboard& operator=(const CX11Keyboard&) = delete;
    ~CX11Keyboard() = default;

    /// True if the event tells of another keyboard or keymap.
    bool HandleEvent(const xcb_generic_event_t& event);

    SNativeKeyEvent Press(const xcb_key_press_event_t& event);
    SNativeKeyEvent Release(const xcb_key_release_event_t& event);

    /// The keys go elsewhere: no key is known to be down, and a sequence that was begun is dropped.
    void Forget();

private:
    template <typename T, void (*unref)(T*)>
    struct TUnref
    {
        void operator()(T* dying) const { unref(dying); }
    };
    template <typename T, void (*unref)(T*)>
    using TShared = std::unique_ptr<T, TUnref<T, unref>>;

    void Listen();
    void Load();
    void LoadSequences();
    SNativeKeyEvent Translate(const xcb_key_press_event_t& event, xkb_keysym_t& symbol);
    void Type(SNativeKeyEvent& event, xkb_keycode_t code, xkb_keysym_t symbol);
    bool FeedSequence(xkb_keysym_t symbol, std::string& text);
    char32_t FindCharacter(xkb_keycode_t code, std::uint32_t state, std::uint32_t modifiers);
    std::uint32_t ModifiersAfter(std::uint32_t before, xkb_keycode_t code, xkb_keysym_t symbol,
                                 bool isDown) const;

    CX11Connection& connection;
    std::uint8_t firstEvent = 0; ///< the extension's; 0 without it
    bool isStale = true;         ///< the keymap is to be asked for before the next key
    bool hasSequences = false;   ///< loaded, or found missing
    TShared<xkb_context, xkb_context_unref> context;
    TShared<xkb_keymap, xkb_keymap_unref> keymap;
    TShared<xkb_state, xkb_state_unref> keyState;
    TShared<xkb_compose_table, xkb_compose_table_unref> table;
    TShared<xkb_compose_state, xkb_compose_state_unref> sequence;
    std::map<xkb_keycode_t, std::uint32_t> down; ///< keys that are down, with the modifier that each is
};

} // namespace Mirel::GUI
