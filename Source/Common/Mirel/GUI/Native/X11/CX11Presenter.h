#pragma once

#include "Mirel/GUI/Native/X11/CX11SharedBuffer.h"
#include "Mirel/Graphics/CBitmap.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <array>
#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

/// Brings pixels to one window: through shared memory where the server can, else in the requests themselves.
/// Pixels are copied into a buffer of the window's size at their place; two buffers take turns, so that the
/// one which the server reads is left alone. GUI thread only.
class CX11Presenter
{
public:
    CX11Presenter(CX11Connection& connection_, xcb_window_t window_, Graphics::CSize size_);
    CX11Presenter(const CX11Presenter&) = delete;
    CX11Presenter& operator=(const CX11Presenter&) = delete;
    ~CX11Presenter();

    void SetSize(Graphics::CSize size_) { size = size_; }

    /// Whether the server has taken everything presented so far.
    bool IsReady() const;

    void Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region);

    /// The server has read the buffer. False if it is none of this window's.
    bool OnTaken(xcb_shm_seg_t segment);

private:
    CX11SharedBuffer* FindBuffer();
    void PutShared(CX11SharedBuffer& buffer, const Graphics::CBitmap& bitmap,
                   const std::vector<Graphics::CRect>& parts) const;
    void PutPlain(const Graphics::CBitmap& bitmap, const Graphics::CRect& part);

    CX11Connection& connection;
    xcb_window_t window;
    xcb_gcontext_t context;
    Graphics::CSize size;
    std::array<CX11SharedBuffer, 2> buffers;
    std::vector<std::uint8_t> stripe;
};

} // namespace Mirel::GUI
