#pragma once

#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"

#include <functional>
#include <map>

namespace Mirel::GUI
{

/// Shows the tooltips of a host's light widgets, and elsewhere on it that of the host itself: when the
/// pointer rests on one, until it moves to another, leaves, or a button, the wheel or a key is used. GUI
/// thread only.
class CHostTooltips : private CWidgetEventsTarget
{
public:
    /// Says what the tooltip is at the time that it is needed; an empty text shows none.
    using Source = std::function<STooltip()>;

    /// All must outlive the object. behind: what the pointer is on where the tree of the host shows nothing,
    /// such as the widget with the background; without it tooltips do not show there. Null for none.
    CHostTooltips(CLightWidgetAdapter& host_, ITooltipPresenter& presenter_, CWidget* behind_ = nullptr);
    CHostTooltips(const CHostTooltips&) = delete;
    CHostTooltips& operator=(const CHostTooltips&) = delete;
    ~CHostTooltips() override;

    /// In the place of an earlier one. The widget must be removed before it dies. With showOnClick a press
    /// shows it at once too.
    void Set(CLightWidget& widget, Source source, bool showOnClick = false);
    void Remove(CLightWidget& widget);

    /// Asks the widget's source again, if its tooltip waits or shows.
    void Refresh(CLightWidget& widget);

private:
    struct STip
    {
        Source source;
        bool showOnClick;
    };

    void OnHide(const COSXOpenEvent& event) override;
    bool OnNativeEvent(const COSXNativeNSEvent& event) override;
    void OnMouse(const SNativeMouseEvent& event);
    void Show(CLightWidget* widget, bool forPress, CPoint screenPosition);
    CLightWidget* Find(CPoint devicePosition) const;
    CLightWidget* FindIn(CLightWidget& widget, CPoint place) const;
    STooltip GetTip(CLightWidget& widget) const;
    bool ShowsOnClick(CLightWidget& widget) const;

    CLightWidgetAdapter& host;
    ITooltipPresenter& presenter;
    CWidget* behind;
    std::map<CLightWidget*, STip> tips;
    CLightWidget* current = nullptr; ///< What the pointer is on.
};

} // namespace Mirel::GUI
