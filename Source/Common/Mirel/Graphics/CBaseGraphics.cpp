#include "Mirel/Graphics/CBaseGraphics.h"

#include "Mirel/Graphics/CSimple2DRegion.h"

#include <algorithm>
#include <utility>

namespace Mirel::Graphics
{

bool CBaseGraphics::HitTest(CPoint point) const
{
    return GetArea().Contains(point);
}

void CBaseGraphics::SetSize(CSize newSize)
{
    if (newSize == size)
    {
        return;
    }
    const CSize old = std::exchange(size, newSize);
    changed.Notify({0, 0, std::max(old.width, size.width), std::max(old.height, size.height)});
}

CRect CBaseGraphics::GetBounds(const CSimple2DRegion* region) const
{
    return region == nullptr ? GetArea() : region->GetBounds();
}

} // namespace Mirel::Graphics
