#pragma once

#include <cstdint>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace Tests
{

/// A second program on a display: plays the user and the host, and looks at what is on the screen.
class CX11Probe
{
public:
    explicit CX11Probe(const std::string& display);
    CX11Probe(const CX11Probe&) = delete;
    CX11Probe& operator=(const CX11Probe&) = delete;
    ~CX11Probe();

    xcb_connection_t* Get() const { return connection; }
    xcb_window_t GetRoot() const { return screen->root; }
    const xcb_screen_t& GetScreen() const { return *screen; }

    /// The server has done all that was asked of it.
    void Sync() const;

    /// The user's hands. Buttons and keys as the protocol numbers them.
    void Move(int x, int y) const;
    void Press(int button) const;
    void Release(int button) const;
    void Click(int button) const;
    void KeyDown(int code) const;
    void KeyUp(int code) const;
    void Type(int code) const;

    /// A window of this program's own, shown; of 32 bits depth if wanted.
    xcb_window_t ShowWindow(int x, int y, int width, int height, bool isDeep = false,
                            xcb_window_t parent = 0) const;
    void Destroy(xcb_window_t window) const;
    void Focus(xcb_window_t window) const;

    /// Row by row, without alpha; empty if it cannot be read. Coordinates of the screen, as it is seen.
    std::vector<std::uint32_t> ReadScreen(int x, int y, int width, int height) const;
    std::uint32_t ReadPixel(int x, int y) const;

    /// All windows on the display, the root included.
    int CountWindows() const { return CountBelow(GetRoot()); }

    std::string ReadProperty(xcb_window_t window, const std::string& name) const;
    xcb_atom_t GetAtom(const std::string& name) const;

private:
    void Fake(std::uint8_t type, int detail, int x, int y) const;
    int CountBelow(xcb_window_t window) const;

    xcb_connection_t* connection;
    xcb_screen_t* screen;
};

} // namespace Tests
