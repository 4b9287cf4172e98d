#pragma once

#include "Mirel/Core/TIArgEventProvider.h"
#include "Mirel/Graphics/Geometry.h"

namespace Mirel::Graphics
{

class CDrawSurface;
class CSimple2DRegion;

/// Something that draws itself into an area whose top left corner is (0, 0). GUI thread.
class IGraphics
{
public:
    /// Draws what lies in the region, or all of it if that is null. Drawing changes nothing that is seen.
    virtual void Draw(CDrawSurface& surface, const CSimple2DRegion* region) = 0;

    /// Whether a point, in the coordinates of the area, lies on what is drawn.
    virtual bool HitTest(CPoint point) const = 0;

    /// True if no pixel of the area lets through what lies beneath.
    virtual bool IsOpaque() const = 0;

    virtual CSize GetSize() const = 0;
    virtual void SetSize(CSize size) = 0;

    /// Raised with the rectangle that has to be drawn again. A listener is not entered twice at once.
    virtual Core::TIArgEventProvider<const CRect&>& GetChangedEvent() = 0;

    virtual ~IGraphics() = default;
};

} // namespace Mirel::Graphics
