#pragma once

#include "Mirel/GUI/Native/ENativeKey.h"

#include <cstdint>
#include <xkbcommon/xkbcommon.h>

namespace Mirel::GUI
{

/// What the key with that symbol means.
ENativeKey KeyOfSymbol(xkb_keysym_t symbol);

/// The ModifierFlags bit of a modifier key, 0 for all other keys and for those that lock.
std::uint32_t ModifierOfSymbol(xkb_keysym_t symbol);

/// ModifierFlags of the state that comes with X events.
std::uint32_t ModifiersOfState(std::uint32_t state);

/// Whether the symbol begins a compose sequence.
bool BeginsSequence(xkb_keysym_t symbol);

} // namespace Mirel::GUI
