#pragma once

#include "Mirel/Graphics/CImage.h"

#include <cstdint>
#include <memory>

namespace Mirel::Graphics
{

class CBitmapSurface;
class CDrawSurface;

/// Off-screen pixels. An empty bitmap has no context, size 0, 0 and no data; drawing into it does nothing.
/// GUI thread.
class CBitmap
{
public:
    CBitmap() = default;
    CBitmap(const CBitmap&) = delete;
    CBitmap& operator=(const CBitmap&) = delete;
    virtual ~CBitmap() = default;

    /// The pixel memory, owned by the bitmap or by whom it was attached from; none if empty.
    virtual CBitmapContext* GetContext() const = 0;

    /// In the pixels that are drawn with; with a device scale there are more in memory.
    virtual CSize GetSize() const;

    /// Pixels of the memory, across and down, for each that is drawn with: 1 to 4.
    virtual int GetDeviceScale() const;

    /// Bits per pixel: 8, 16, 24 or 32; 0 for a bitmap without a depth of its own that is empty.
    virtual int GetDepth() const;

    virtual const std::uint8_t* GetData() const;

    /// For writing. What is written while a surface of the bitmap lives is lost unless the depth is 32.
    virtual std::uint8_t* GetData();

    /// For drawing into the bitmap, never none. Pixels of depths other than 32 are there once the surface is
    /// destroyed. It draws into the pixels that the bitmap had when it was made, also after a SetSize.
    virtual std::unique_ptr<CDrawSurface> CreateSurface();

    /// The same in its second form: none if the bitmap is empty or too large to draw into.
    virtual std::unique_ptr<CBitmapSurface> CreateBitmapSurface();

    /// Zeroes all pixels: transparent in 32 bits, else black.
    virtual void Clear();

    /// An image that shares the pixels and keeps them when the bitmap goes.
    virtual CSharedImage CreateImage() const;

    /// None if the bitmap is empty. It must not outlive the pixels.
    virtual std::unique_ptr<IPixelAccess> CreatePixelAccess();

    /// Replaces the pixels by cleared ones of the same depth and device scale; the same size changes nothing.
    /// A side below 1 makes the bitmap empty, and so does a size beyond CLimits.
    virtual void SetSize(CSize size);

protected:
    /// Takes other pixels in the place of those held; null makes the bitmap empty.
    virtual void Replace(std::shared_ptr<CBitmapContext> context) = 0;
};

} // namespace Mirel::Graphics
