#pragma once

#include "Mirel/GUI/CKeyboardTarget.h"
#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CMouseTarget.h"
#include "Mirel/GUI/Popups/CPopupLook.h"

namespace Mirel::GUI
{

class INativePlatform;

/// What the controls of the toolkit's own dialogs have in common: light widgets that draw themselves in one
/// popupLook and handle their own input. GUI thread only; callbacks may destroy the control.
class CDrawnControl : public CLightWidget, protected CMouseTarget, protected CKeyboardTarget
{
public:
    CDrawnControl(CLightWidget* parent_, const CPopupLook& look_);
    ~CDrawnControl() override;

    void Enable(bool enable) override;

protected:
    /// Draws the whole control, in its own coordinates.
    virtual void Paint(Graphics::CDrawSurface& surface, CSize size) = 0;

    const CPopupLook& GetLook() const { return popupLook; }

    /// Null while the control is in no window.
    INativePlatform* FindPlatform() const;

    bool OnMouseEnter(const COSXMouseEvent& event) override;
    bool OnMouseLeave(const COSXMouseEvent& event) override;
    bool OnFocusGained() override;
    bool OnFocusLost() override;

private:
    class CPicture;

    CPopupLook popupLook;
};

} // namespace Mirel::GUI
