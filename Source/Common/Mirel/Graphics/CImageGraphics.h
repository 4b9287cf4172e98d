#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CImageCatalog.h"

#include <memory>

namespace Mirel::Graphics
{

/// Draws one image: once from the top left, repeated over the area, or stretched to it. Its size is at first
/// that of the image.
class CImageGraphics : public CBaseGraphics
{
public:
    enum class ETileMode
    {
        None = 0,
        Repeat = 1,
        Stretch = 2,
    };

    explicit CImageGraphics(std::unique_ptr<CImageElement> element, ETileMode mode_ = ETileMode::None);

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;

    /// Repeated images are hit where the mouse mask of their piece is; a stretched one everywhere.
    bool HitTest(CPoint point) const override;
    bool IsOpaque() const override;

    ETileMode GetTileMode() const { return mode; }
    void SetTileMode(ETileMode newMode);

    /// Takes another image, or none. The size of the area stays.
    void SetElement(std::unique_ptr<CImageElement> element);

private:
    void DrawRepeated(CDrawSurface& surface, const CRect& clip);
    void DrawStretched(CDrawSurface& surface, const CRect& clip);

    std::unique_ptr<CImageCatalog> catalog;
    ETileMode mode;
    std::unique_ptr<CDIBBitmap> stretched; ///< The image in the size of the area; empty until it is needed.
    std::unique_ptr<CDIBBitmap>
        block; ///< A small image repeated, so that a large area takes few pieces; empty until needed.
};

} // namespace Mirel::Graphics
