#pragma once

#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <cstddef>
#include <cstdint>
#include <xcb/shm.h>

namespace Mirel::GUI
{

/// Memory shared with the X server. It goes with the last of both processes, however they end. GUI thread
/// only.
class CX11SharedBuffer
{
public:
    explicit CX11SharedBuffer(CX11Connection& connection_) : connection(connection_) {}
    CX11SharedBuffer(const CX11SharedBuffer&) = delete;
    CX11SharedBuffer& operator=(const CX11SharedBuffer&) = delete;
    ~CX11SharedBuffer() { Release(); }

    /// Makes it hold so many bytes; what it held may be lost. False, and empty, if the server does not take
    /// part, which is also noted at the connection: it is on another machine or walled off.
    bool Reserve(std::size_t bytes);
    void Release();

    std::uint8_t* GetData() const { return data; }

    /// The server's name of it, 0 if it is empty.
    xcb_shm_seg_t GetSegment() const { return segment; }

    /// The server may still read. The owner sets and clears it.
    bool IsBusy() const { return busy; }
    void SetBusy(bool busy_) { busy = busy_; }

private:
    bool Allocate(std::size_t bytes);

    CX11Connection& connection;
    std::uint8_t* data = nullptr;
    std::size_t capacity = 0;
    xcb_shm_seg_t segment = 0;
    bool busy = false;
};

} // namespace Mirel::GUI
