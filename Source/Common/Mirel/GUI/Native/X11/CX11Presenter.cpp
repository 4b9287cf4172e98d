#include "Mirel/GUI/Native/X11/CX11Presenter.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Mirel::GUI
{

using Graphics::CBitmap;
using Graphics::CRect;
using Graphics::CSimple2DRegion;
using Graphics::CSize;

namespace
{
constexpr int pixelDepth = 32;
constexpr std::size_t pixelBytes = 4;

/// More rectangles than this cost more as requests than the pixels between them.
constexpr int mostParts = 16;

/// A put in the request itself goes out in pieces of this size, so that the server can do other work between.
constexpr std::size_t stripeBytes = 256 * 1024;

std::size_t RowBytes(int width)
{
    return static_cast<std::size_t>(width) * pixelBytes;
}

std::vector<CRect> FindParts(const CSimple2DRegion& region, const CRect& area)
{
    std::vector<CRect> parts;
    const int count = region.GetRectCount();
    for (int i = 0; i < (count > mostParts ? 1 : count); ++i)
    {
        const CRect part =
            Graphics::Intersect(count > mostParts ? region.GetBounds() : region.GetRect(i), area);
        if (!part.IsEmpty())
        {
            parts.push_back(part);
        }
    }
    return parts;
}

void CopyRows(const CBitmap& bitmap, const CRect& part, std::uint8_t* target, std::size_t targetStride)
{
    const std::size_t stride = RowBytes(bitmap.GetSize().width);
    const std::uint8_t* source =
        bitmap.GetData() + static_cast<std::size_t>(part.y) * stride + RowBytes(part.x);
    for (int row = 0; row < part.height; ++row)
    {
        std::memcpy(target, source, RowBytes(part.width));
        source += stride;
        target += targetStride;
    }
}
} // namespace

CX11Presenter::CX11Presenter(CX11Connection& connection_, xcb_window_t window_, CSize size_)
    : connection(connection_),
      window(window_),
      context(xcb_generate_id(connection_.Get())),
      size(size_),
      buffers{CX11SharedBuffer(connection_), CX11SharedBuffer(connection_)}
{
    const std::uint32_t noExposures = 0;
    xcb_create_gc(connection.Get(), context, window, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
}

CX11Presenter::~CX11Presenter()
{
    const CX11Scope scope(connection);
    xcb_free_gc(connection.Get(), context);
}

bool CX11Presenter::IsReady() const
{
    return std::none_of(buffers.begin(), buffers.end(),
                        [](const CX11SharedBuffer& buffer) { return buffer.IsBusy(); });
}

bool CX11Presenter::OnTaken(xcb_shm_seg_t segment)
{
    for (CX11SharedBuffer& buffer : buffers)
    {
        if (buffer.GetSegment() == segment)
        {
            buffer.SetBusy(false);
            return true;
        }
    }
    return false;
}

CX11SharedBuffer* CX11Presenter::FindBuffer()
{
    if (!connection.HasSharedMemory())
    {
        return nullptr;
    }
    const auto place = std::find_if(buffers.begin(), buffers.end(),
                                    [](const CX11SharedBuffer& buffer) { return !buffer.IsBusy(); });
    const std::size_t bytes = RowBytes(size.width) * static_cast<std::size_t>(size.height);
    return place != buffers.end() && place->Reserve(bytes) ? &*place : nullptr;
}

void CX11Presenter::Present(const CBitmap& bitmap, const CSimple2DRegion& region)
{
    if (bitmap.GetDepth() != pixelDepth || bitmap.GetData() == nullptr)
    {
        return;
    }
    const CRect area = Graphics::Intersect(CRect({0, 0}, size), CRect({0, 0}, bitmap.GetSize()));
    const std::vector<CRect> parts = FindParts(region, area);
    if (parts.empty())
    {
        return;
    }
    const CX11Scope scope(connection);
    if (CX11SharedBuffer* buffer = FindBuffer(); buffer != nullptr)
    {
        PutShared(*buffer, bitmap, parts);
        return;
    }
    for (const CRect& part : parts)
    {
        PutPlain(bitmap, part);
    }
}

void CX11Presenter::PutShared(CX11SharedBuffer& buffer, const CBitmap& bitmap,
                              const std::vector<CRect>& parts) const
{
    const std::size_t stride = RowBytes(size.width);
    for (const CRect& part : parts)
    {
        CopyRows(bitmap, part,
                 buffer.GetData() + static_cast<std::size_t>(part.y) * stride + RowBytes(part.x), stride);
    }
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        const CRect& part = parts[i];
        const auto left = static_cast<std::int16_t>(part.x);
        const auto top = static_cast<std::int16_t>(part.y);
        const bool isLast = i + 1 == parts.size(); // Requests are done in order: its end is the end of all.
        xcb_shm_put_image(connection.Get(), window, context, static_cast<std::uint16_t>(size.width),
                          static_cast<std::uint16_t>(size.height), static_cast<std::uint16_t>(part.x),
                          static_cast<std::uint16_t>(part.y), static_cast<std::uint16_t>(part.width),
                          static_cast<std::uint16_t>(part.height), left, top, connection.GetDepth(),
                          XCB_IMAGE_FORMAT_Z_PIXMAP, isLast ? 1 : 0, buffer.GetSegment(), 0);
    }
    buffer.SetBusy(true);
}

void CX11Presenter::PutPlain(const CBitmap& bitmap, const CRect& part)
{
    const std::size_t stride = RowBytes(part.width);
    const std::size_t longest =
        std::min<std::size_t>(stripeBytes, std::size_t{xcb_get_maximum_request_length(connection.Get())} * 2);
    const int rows = static_cast<int>(std::max<std::size_t>(longest / stride, 1));
    for (int done = 0; done < part.height; done += rows)
    {
        const CRect piece(part.x, part.y + done, part.width, std::min(rows, part.height - done));
        stripe.resize(stride * static_cast<std::size_t>(piece.height));
        CopyRows(bitmap, piece, stripe.data(), stride);
        xcb_put_image(connection.Get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, context,
                      static_cast<std::uint16_t>(piece.width), static_cast<std::uint16_t>(piece.height),
                      static_cast<std::int16_t>(piece.x), static_cast<std::int16_t>(piece.y), 0,
                      connection.GetDepth(), static_cast<std::uint32_t>(stripe.size()), stripe.data());
    }
}

} // namespace Mirel::GUI
