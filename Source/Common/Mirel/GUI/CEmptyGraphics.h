#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"

namespace Mirel::GUI
{

/// Graphics of a widget that shows nothing itself. GUI thread only.
class CEmptyGraphics : public Graphics::CBaseGraphics
{
public:
    /// isHit_ tells whether points of the area are hit all the same, as on an invisible button.
    explicit CEmptyGraphics(Graphics::CSize size_ = Graphics::CSize(), bool isHit_ = false)
        : CBaseGraphics(size_),
          isHit(isHit_)
    {
    }

    void Draw(Graphics::CDrawSurface& /*surface*/, const Graphics::CSimple2DRegion* /*region*/) override {}

    bool HitTest(Graphics::CPoint point) const override { return isHit && CBaseGraphics::HitTest(point); }

private:
    bool isHit;
};

} // namespace Mirel::GUI
