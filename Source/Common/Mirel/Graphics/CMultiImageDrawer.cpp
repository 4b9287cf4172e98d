#include "Mirel/Graphics/CMultiImageDrawer.h"

namespace Mirel::Graphics
{

CMultiImageDrawer::CMultiImageDrawer(CImageCatalog* catalog_, bool owned)
    : CBaseGraphics(catalog_->GetSize(0)),
      catalog(catalog_, owned)
{
}

void CMultiImageDrawer::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    const CRect drawn = GetBounds(region);
    catalog->Draw(index, surface, drawn, drawn);
}

bool CMultiImageDrawer::HitTest(CPoint point) const
{
    return catalog->HitTest(index, point, CImageCatalog::hitThreshold, CPoint());
}

bool CMultiImageDrawer::IsOpaque() const
{
    return catalog->IsOpaque(index) && IsCoveredBy(catalog->GetSize(index));
}

void CMultiImageDrawer::SetIndex(int newIndex)
{
    if (newIndex != index)
    {
        index = newIndex;
        RaiseChanged();
    }
}

} // namespace Mirel::Graphics
