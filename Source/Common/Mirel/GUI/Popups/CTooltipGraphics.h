#pragma once

#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/Graphics/CBaseGraphics.h"

namespace Mirel::GUI
{

/// What a tooltip looks like; its size at first is that of its text. GUI thread only.
class CTooltipGraphics : public Graphics::CBaseGraphics
{
public:
    CTooltipGraphics(const STooltip& tip_, const CPopupLook& look_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;
    bool IsOpaque() const override { return true; }

private:
    STooltip tip;
    CPopupLook look;
};

} // namespace Mirel::GUI
