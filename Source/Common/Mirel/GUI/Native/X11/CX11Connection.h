#pragma once

#include "Mirel/GUI/Native/X11/X11Atoms.h"
#include "Mirel/GUI/Native/X11/X11Memory.h"

#include <array>
#include <csignal>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

/// One connection to an X server: its screen, the picture format of the windows, the names of the protocol
/// and the events that came in. A connection that broke stays an object on which everything fails quietly.
/// GUI thread only.
class CX11Connection
{
public:
    /// An empty name takes the display of the environment. None if there is no server, or none whose pictures
    /// have 32 bits a pixel in this machine's byte order.
    static std::unique_ptr<CX11Connection> Open(const std::string& display);

    CX11Connection(const CX11Connection&) = delete;
    CX11Connection& operator=(const CX11Connection&) = delete;
    ~CX11Connection();

    xcb_connection_t* Get() const { return connection; }
    bool IsLost() const { return xcb_connection_has_error(connection) != 0; }

    const xcb_screen_t& GetScreen() const { return *screen; }
    int GetScreenIndex() const { return screenIndex; }
    xcb_window_t GetRoot() const { return screen->root; }

    /// Of all windows made here, whatever their parent has.
    xcb_visualid_t GetVisual() const { return visual; }
    std::uint8_t GetDepth() const { return depth; }
    xcb_colormap_t GetColormap() const { return colormap; }

    xcb_atom_t GetAtom(EX11Atom atom) const { return atoms[static_cast<std::size_t>(atom)]; }

    /// Whether pictures may go through shared memory, as far as is known. The first that fails settles it.
    bool HasSharedMemory() const { return sharedMemory; }
    void GiveUpSharedMemory() { sharedMemory = false; }

    /// The event type of a picture that was taken; 0 without shared memory.
    std::uint8_t GetCompletionType() const { return completionType; }

    /// The next event, none if there is none at present.
    CX11Event NextEvent();

    /// The event after that, if it has come in already.
    const xcb_generic_event_t* PeekEvent() const { return events.empty() ? nullptr : events.front().get(); }

    /// Whether an event waits that the descriptor may not tell of any more: calls that wait for an answer,
    /// and those that write, read events too.
    bool HasQueuedEvents();

    /// Called at the end of an operation that left such events.
    void SetQueuedEventsListener(std::function<void()> listener) { onQueuedEvents = std::move(listener); }

    /// The bytes of a property, empty if it is not there, has another type (unless that is
    /// XCB_GET_PROPERTY_TYPE_ANY) or another format. At most limit bytes.
    std::vector<std::uint8_t> ReadProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                           int format, std::uint32_t limit) const;

private:
    friend class CX11Scope;

    explicit CX11Connection(xcb_connection_t* connection_, int screenIndex_)
        : connection(connection_),
          screenIndex(screenIndex_)
    {
    }

    bool Init();
    bool ChooseVisual();
    bool HasFullPictures(std::uint8_t candidate) const;
    void InternAtoms();
    void FindSharedMemory();
    void Enter();
    void Leave();

    xcb_connection_t* connection;
    int screenIndex;
    xcb_screen_t* screen = nullptr;
    xcb_visualid_t visual = 0;
    std::uint8_t depth = 0;
    xcb_colormap_t colormap = 0;
    bool sharedMemory = false;
    std::uint8_t completionType = 0;
    std::array<xcb_atom_t, x11AtomNames.size()> atoms{};
    std::deque<CX11Event> events;
    std::function<void()> onQueuedEvents;
    int scopes = 0;
    bool wasPipeSignalPending = false;
    sigset_t signalsBefore{};
};

/// Around everything that talks to the server. The outermost sends what was asked for when it ends.
///
/// The library writes to its socket in a way that raises SIGPIPE when the server has died, which would end a
/// host that does not expect it: in a scope the signal is held back, and taken away at its end.
class CX11Scope
{
public:
    explicit CX11Scope(CX11Connection& connection_) : connection(connection_) { connection.Enter(); }
    CX11Scope(const CX11Scope&) = delete;
    CX11Scope& operator=(const CX11Scope&) = delete;
    ~CX11Scope() { connection.Leave(); }

private:
    CX11Connection& connection;
};

} // namespace Mirel::GUI
