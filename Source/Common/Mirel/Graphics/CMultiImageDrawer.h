#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CImageCatalog.h"

namespace Mirel::Graphics
{

/// Draws one image of a catalog, unscaled, from the top left of its area. Its size is at first that of image
/// 0.
class CMultiImageDrawer : public CBaseGraphics
{
public:
    /// The catalog must not be null; it goes with the drawer if it is owned, else must outlive it.
    CMultiImageDrawer(CImageCatalog* catalog_, bool owned);

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;
    bool HitTest(CPoint point) const override;
    bool IsOpaque() const override;

    int GetIndex() const { return index; }
    void SetIndex(int newIndex);
    CImageCatalog& GetCatalog() const { return *catalog; }

private:
    Core::TOwnership<CImageCatalog> catalog;
    int index = 0;
};

} // namespace Mirel::Graphics
