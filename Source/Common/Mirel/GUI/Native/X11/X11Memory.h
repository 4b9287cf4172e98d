#pragma once

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

struct CX11Free
{
    void operator()(void* memory) const { std::free(memory); } // NOLINT: allocated by the library
};

/// What the X library hands out: replies, events and errors.
template <typename T>
using TX11Pointer = std::unique_ptr<T, CX11Free>;

using CX11Event = TX11Pointer<xcb_generic_event_t>;

} // namespace Mirel::GUI
