#pragma once

#include "Mirel/GUI/Native/Dialogs/IDialogs.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/Graphics/CBaseGraphics.h"

namespace Mirel::GUI
{

/// The sign of a kind of message: a disc with an i, a triangle with an exclamation mark, a disc with a cross.
/// As large as its shorter side. GUI thread only.
class CAlertIcon : public Graphics::CBaseGraphics
{
public:
    CAlertIcon(EMessageKind kind_, const CPopupLook& look_) : kind(kind_), look(look_) {}

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;

private:
    EMessageKind kind;
    CPopupLook look;
};

} // namespace Mirel::GUI
