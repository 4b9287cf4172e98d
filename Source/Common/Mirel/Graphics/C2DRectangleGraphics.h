#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"

#include <cstdint>

namespace Mirel::Graphics
{

/// The outline of a rectangle, that of the part of its area that is being drawn.
class C2DRectangleGraphics : public CBaseGraphics
{
public:
    explicit C2DRectangleGraphics(CColor color_ = CColor(), std::uint32_t penStyle_ = 0)
        : color(color_),
          penStyle(penStyle_)
    {
    }

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;

    CColor GetColor() const { return color; }
    void SetColor(CColor newColor);

    /// As CDrawSurface::SetPenStyle has it.
    std::uint32_t GetPenStyle() const { return penStyle; }
    void SetPenStyle(std::uint32_t newPenStyle);

private:
    CColor color;
    std::uint32_t penStyle;
};

} // namespace Mirel::Graphics
