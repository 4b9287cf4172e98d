#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"

#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Premultiply.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

using Graphics::CRect;

constexpr int pictureDepth = 32;
constexpr std::uint32_t opaque = 0xff000000U;

CSize AtLeastOne(CSize size)
{
    return {std::max(size.width, 1), std::max(size.height, 1)};
}

/// As a screen shows pixels: their colour alone counts. Both bitmaps hold 32 bits a pixel.
void CopyOpaque(const Graphics::CBitmap& from, Graphics::CBitmap& to, const CRect& part)
{
    const std::int64_t fromStride = from.GetContext()->GetStride();
    const std::int64_t toStride = to.GetContext()->GetStride();
    for (int y = part.y; y < part.y + part.height; ++y)
    {
        const std::uint8_t* source = from.GetData() + fromStride * y;
        std::uint8_t* target = to.GetData() + toStride * y;
        for (int x = part.x; x < part.x + part.width; ++x)
        {
            Graphics::StorePixel(target, x, Graphics::LoadPixel(source, x) | opaque);
        }
    }
}

int Limit(int side, int smallest, int largest)
{
    return std::max(largest > 0 ? std::min(side, largest) : side, smallest);
}

} // namespace

COffscreenWindow::COffscreenWindow(COffscreenPlatform& platform_, const SNativeWindowOptions& options,
                                   INativeWindowSink& sink_)
    : platform(platform_),
      sink(sink_),
      kind(options.kind),
      position(options.position),
      size(AtLeastOne(options.size)),
      title(options.title),
      owner(options.owner),
      picture(pictureDepth, size)
{
    platform.Add(*this);
}

COffscreenWindow::~COffscreenWindow()
{
    platform.Remove(*this);
}

void COffscreenWindow::Show(bool show)
{
    if (!open || show == shown)
    {
        return;
    }
    shown = show;
    lost = Graphics::CSimple2DRegion({CPoint(), size});
    platform.OnWindowShown(*this);
}

void COffscreenWindow::Raise()
{
    platform.Raise(*this);
}

void COffscreenWindow::SetPosition(CPoint newPosition)
{
    if (open && newPosition != position)
    {
        position = newPosition;
        sink.OnMoved(position);
    }
}

void COffscreenWindow::SetSize(CSize newSize)
{
    const CSize wanted = AtLeastOne(newSize);
    if (open && wanted != size)
    {
        size = wanted;
        picture.SetSize(size);
        lost = Graphics::CSimple2DRegion({CPoint(), size});
        platform.SchedulePump();
        sink.OnResized(size);
    }
}

void COffscreenWindow::SetSizeLimits(CSize newSmallest, CSize newLargest)
{
    smallest = newSmallest;
    largest = newLargest;
}

void COffscreenWindow::SetFocus()
{
    if (open && shown)
    {
        platform.SetFocus(this);
    }
}

bool COffscreenWindow::HasFocus() const
{
    return platform.GetFocus() == this;
}

bool COffscreenWindow::CaptureMouse()
{
    return open && shown && platform.Capture(*this);
}

void COffscreenWindow::ReleaseMouse()
{
    platform.ReleaseCapture(*this);
}

void COffscreenWindow::SetCursor(ECursorShape newShape)
{
    cursorShape = newShape;
    hasCursorPicture = false;
}

void COffscreenWindow::SetCursor(const Graphics::CBitmap& picture_, CPoint hotSpot)
{
    cursorShape = ECursorShape::Normal;
    hasCursorPicture =
        picture_.GetDepth() == pictureDepth && CRect(CPoint(), picture_.GetSize()).Contains(hotSpot);
}

void COffscreenWindow::RequestPaint()
{
    if (open)
    {
        paintRequested = true;
        platform.SchedulePump();
    }
}

void COffscreenWindow::Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region)
{
    if (!open)
    {
        return;
    }
    const CSize common =
        Graphics::Intersect({CPoint(), picture.GetSize()}, {CPoint(), bitmap.GetSize()}).GetSize();
    for (int i = 0; i < region.GetRectCount(); ++i)
    {
        const CRect part = Graphics::Intersect(region.GetRect(i), {CPoint(), common});
        if (!part.IsEmpty())
        {
            CopyOpaque(bitmap, picture, part);
            presented.Union(part);
        }
    }
}

Graphics::CSimple2DRegion COffscreenWindow::TakePresented()
{
    return std::exchange(presented, Graphics::CSimple2DRegion());
}

void COffscreenWindow::ResizeByUser(CSize newSize)
{
    SetSize({Limit(newSize.width, smallest.width, largest.width),
             Limit(newSize.height, smallest.height, largest.height)});
}

void COffscreenWindow::CloseFromOutside()
{
    if (open)
    {
        shown = false;
        open = false;
        platform.ForgetInput(*this);
        sink.OnClosed();
    }
}

void COffscreenWindow::Lose(const CRect& part)
{
    lost.Union(Graphics::Intersect(part, {CPoint(), size}));
    platform.SchedulePump();
}

bool COffscreenWindow::PaintIfDue()
{
    if (!shown || (!paintRequested && lost.IsEmpty()))
    {
        return false;
    }
    paintRequested = false;
    sink.OnPaint(std::exchange(lost, Graphics::CSimple2DRegion()));
    return true;
}

} // namespace Mirel::GUI
