#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"

namespace Mirel::Graphics
{

/// Fills its area with one colour.
class CColorDrawer : public CBaseGraphics
{
public:
    explicit CColorDrawer(CColor color_, bool opaque_ = true) : color(color_), opaque(opaque_) {}

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;
    bool IsOpaque() const override { return opaque; }

    CColor GetColor() const { return color; }
    void SetColor(CColor newColor);

private:
    CColor color;
    bool opaque;
};

} // namespace Mirel::Graphics
