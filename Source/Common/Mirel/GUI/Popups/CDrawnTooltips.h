#pragma once

#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/GUI/Popups/CPopupWindow.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Mirel::GUI
{

/// Tooltips in popup windows that the toolkit draws. One shows at a time; it goes by itself when its time is
/// over, or once the pointer has left the window that it belongs to. GUI thread only.
class CDrawnTooltips : public ITooltipPresenter
{
public:
    /// The platform must outlive the object, and a window for as long as a tooltip of it waits or shows.
    CDrawnTooltips(INativePlatform& platform_, const CPopupLook& look_);
    CDrawnTooltips(const CDrawnTooltips&) = delete;
    CDrawnTooltips& operator=(const CDrawnTooltips&) = delete;
    ~CDrawnTooltips() override;

    /// At once, until Hide.
    void Show(const std::string& text, const INativeWindow& owner, CPoint screenPosition) override;
    void Hide() override;

    /// After its delay where the pointer is then, or at the given place if there is no delay.
    void ShowTip(const STooltip& tip_, const INativeWindow& owner_, CPoint screenPosition) override;

    /// A tooltip that shows has all its time again.
    void SetTipText(const std::string& text) override;

    /// Null while none shows.
    const CPopupWindow* GetWindow() const;

private:
    class CTipWindow;

    void Wait(int milliseconds, void (CDrawnTooltips::*then)());
    CRect GetFrame() const;
    void LimitTime();
    void OpenAtPointer() { OpenAt(platform.GetPointerPosition()); }
    void OpenAt(CPoint screenPosition);
    void HideIfLeft();

    INativePlatform& platform;
    CPopupLook look;
    STooltip tip;
    const INativeWindow* owner = nullptr;
    CPoint place; ///< What it shows near.
    std::unique_ptr<CTipWindow> window;
    std::uint64_t timer = 0;
    std::uint64_t leaveTimer = 0;
};

} // namespace Mirel::GUI
