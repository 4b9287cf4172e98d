#pragma once

#include "Host/Run/CParameterSet.h"
#include "Mirel/GUI/DrawnDialogs/CTextDialog.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"

#include <memory>
#include <string>

namespace Host
{

/// The host's own menu of a parameter: what it is set to, what it can be set to, and its default. GUI thread
/// only.
class CParameterMenu
{
public:
    /// Both must outlive it.
    CParameterMenu(AAX_IEffectParameters& parameters_, Mirel::GUI::INativePlatform& platform_,
                   const Mirel::GUI::CPopupLook& look_);
    CParameterMenu(const CParameterMenu&) = delete;
    CParameterMenu& operator=(const CParameterMenu&) = delete;

    /// Opens under the pointer, in front of the window, which must outlive what is open. False for a
    /// parameter that the instance does not have, and if no menu can be shown.
    bool Open(const char* parameterId, const Mirel::GUI::INativeWindow& window);

    /// What is open, or was last.
    const Mirel::GUI::CMenu& GetMenu() const { return menu; }
    const Mirel::GUI::CDrawnMenus& GetMenus() const { return menus; }

    /// The window in which a value is typed; null while there is none.
    Mirel::GUI::CTextDialog* GetDialog() const { return dialog.get(); }

private:
    using CParameter = CParameterSet::CParameter;

    void Fill(const CParameter& parameter, const Mirel::GUI::INativeWindow& window);
    void AddSteps(const CParameter& parameter, double present);
    void EnterValue(const CParameter& parameter, const Mirel::GUI::INativeWindow& window);
    void Set(const CParameter& parameter, double normalized);
    double GetPresent(const CParameter& parameter) const;

    AAX_IEffectParameters& parameters;
    CParameterSet all;
    Mirel::GUI::INativePlatform& platform;
    Mirel::GUI::CPopupLook look;
    Mirel::GUI::CMenu menu;
    Mirel::GUI::CDrawnMenus menus;
    std::unique_ptr<Mirel::GUI::CTextDialog> dialog;
};

} // namespace Host
