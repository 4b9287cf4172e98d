#pragma once

#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/IPixelAccess.h"

#include <memory>

namespace Mirel::Graphics
{

class CBitmapContext;

/// A picture to draw from: a pixel memory that it shares with whoever else holds it, and whether any of it
/// may be transparent. An empty image has size 0, 0 and draws nothing. GUI thread.
class CImage
{
public:
    CImage() = default;
    CImage(std::shared_ptr<CBitmapContext> context_, bool hasAlpha_);

    /// In the pixels that are drawn with: an image for a device scale of 2 has twice as many each way.
    CSize GetSize() const;
    bool IsEmpty() const { return context == nullptr; }
    bool HasAlpha() const { return hasAlpha; }

    /// The pixels as the memory holds them: those of 32 bits are premultiplied. None if the image is empty.
    std::unique_ptr<const IPixelAccess> CreatePixelAccess() const;

    /// The pixels; none if the image is empty. They are not copied: what changes them changes the image.
    CBitmapContext* GetContext() const { return context.get(); }

private:
    std::shared_ptr<CBitmapContext> context;
    bool hasAlpha = false;
};

/// An image that several hold; it goes with the last of them.
using CSharedImage = std::shared_ptr<const CImage>;

} // namespace Mirel::Graphics
