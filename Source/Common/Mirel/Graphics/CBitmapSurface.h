#pragma once

#include "Mirel/Graphics/CBitmapAdapter.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/IPixelAccess.h"

#include <memory>

namespace Mirel::Graphics
{

/// A surface over the pixels of a bitmap. Its destruction ends the drawing: pixels of 8, 16 and 24 bits are
/// converted then.
class CBitmapSurface : public CDrawSurface
{
public:
    /// None if there is no context or it cannot be drawn into. The pixels stay alive as long as the surface.
    static std::unique_ptr<CBitmapSurface> Create(CBitmapContext* pixels);
    ~CBitmapSurface() override;

    CBitmap* GetBitmap() override { return &bitmap; }
    CSize GetContextSize() const override;

    /// y is counted from the bottom edge before it is rounded, so it is exact above the bitmap too.
    CPoint GetTranslation() const override;

    /// Single pixels in the bitmap's own depth, owned by the surface. In other depths than 32 they show what
    /// was there before the drawing.
    IPixelAccess* GetPixelAccess() const { return access.get(); }

private:
    CBitmapSurface(cairo_t* context_, std::shared_ptr<CBitmapContext> pixels_);

    std::shared_ptr<CBitmapContext> pixels;
    CBitmapAdapter bitmap;
    std::unique_ptr<IPixelAccess> access;
};

} // namespace Mirel::Graphics
