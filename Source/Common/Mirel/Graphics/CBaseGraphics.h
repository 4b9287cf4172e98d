#pragma once

#include "Mirel/Core/TArgEventProvider.h"
#include "Mirel/Graphics/IGraphics.h"

namespace Mirel::Graphics
{

/// What graphics have in common: a size, the changed event, and a hit everywhere in the area.
class CBaseGraphics : public virtual IGraphics
{
public:
    bool HitTest(CPoint point) const override;
    bool IsOpaque() const override { return false; }
    CSize GetSize() const override { return size; }

    /// A change raises the event with a rectangle that covers the old and the new area.
    void SetSize(CSize newSize) override;

    Core::TIArgEventProvider<const CRect&>& GetChangedEvent() override { return changed; }

protected:
    explicit CBaseGraphics(CSize size_ = CSize()) : size(size_) {}

    CRect GetArea() const { return {CPoint(), size}; }

    /// The region's bounding box, or the whole area if there is no region.
    CRect GetBounds(const CSimple2DRegion* region) const;

    /// True if a picture of that size, drawn from the top left, leaves nothing of the area open.
    bool IsCoveredBy(CSize picture) const
    {
        return size.width <= picture.width && size.height <= picture.height;
    }

    /// The changed event for the whole area.
    void RaiseChanged() const { changed.Notify(GetArea()); }

private:
    CSize size;
    Core::TArgEventProvider<const CRect&> changed;
};

} // namespace Mirel::Graphics
