#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CImageElement.h"

#include <array>
#include <memory>

namespace Mirel::Graphics
{

/// A box of nine images: the corners as they are, the edges stretched along, the centre stretched both ways.
/// An image that is missing leaves its place open. Corners win where the area is too small for all.
class CImageGroupBoxGraphics : public CBaseGraphics
{
public:
    /// Row by row.
    enum class EPart
    {
        TopLeft = 0,
        Top = 1,
        TopRight = 2,
        Left = 3,
        Center = 4,
        Right = 5,
        BottomLeft = 6,
        Bottom = 7,
        BottomRight = 8,
    };

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;

    /// Owns the element; null leaves the place open.
    void SetPart(EPart part, std::unique_ptr<CImageElement> element);

private:
    CSize GetPartSize(EPart part) const;
    void DrawPart(CDrawSurface& surface, EPart part, const CRect& place) const;

    std::array<std::unique_ptr<CImageElement>, 9> parts;
};

} // namespace Mirel::Graphics
