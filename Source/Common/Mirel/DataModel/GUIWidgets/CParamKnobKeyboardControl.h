#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/DataModel/GUIWidgets/KnobSteps.h"
#include "Mirel/GUI/CKeyboardTarget.h"

#include <functional>

namespace Mirel::DataModel::GUIWidgets
{

/// Turns a knob with the keys: plus, minus and the arrows by a step, the page keys by a page, D to the
/// default, E opens the window for typing. GUI thread.
class CParamKnobKeyboardControl : public GUI::CKeyboardTarget
{
public:
    /// Neither is owned; both must outlive this object. Without an opener E does nothing. getPlace gives
    /// where the window is to open.
    explicit CParamKnobKeyboardControl(
        Controls::CParamControl& control_, IFineEditOpener* opener_ = nullptr,
        std::function<Core::CPoint()> getPlace_ = [] { return Core::CPoint(); });

    /// Pixels for the whole range: a step is as large as a pixel of the mouse. As in CParamKnobMouseControl.
    void SetPixelRange(float newPixelRange) { pixelRange = newPixelRange; }
    float GetPixelRange() const { return pixelRange; }

    /// Steps in a page.
    void SetPageSize(int newPageSize) { pageSize = newPageSize; }
    int GetPageSize() const { return pageSize; }

    bool AcceptsKey(const GUI::COSXKeyEvent& event) override;
    bool OnKeyDown(const GUI::COSXKeyEvent& event) override;

private:
    bool GetSignedSteps(const GUI::COSXKeyEvent& event, int& steps) const;

    static constexpr int defaultPageSize = 10;

    Controls::CParamControl& control;
    IFineEditOpener* opener;
    std::function<Core::CPoint()> getPlace;
    float pixelRange = noPixelRange;
    int pageSize = defaultPageSize;
    Core::CLifeToken life; ///< A change of the value may destroy the widget.
};

} // namespace Mirel::DataModel::GUIWidgets
