#pragma once

#include "Mirel/GUI/CLightWidgetAdapter.h"

namespace Mirel::SkinEngine
{

/// The native host of one element of a skin. Its layout speaks of the light widget that the element stands
/// in; it moves itself to that place in its native parent. GUI thread only.
class CSkinWidgetAdapter : public GUI::CLightWidgetAdapter
{
public:
    /// Neither is owned. The light parent may be null.
    CSkinWidgetAdapter(GUI::CLightWidget& content, const GUI::CLightWidget* around_)
        : CLightWidgetAdapter(&content, false),
          around(around_)
    {
    }

    void Move(const GUI::CPoint& newPosition) override
    {
        const GUI::CPoint origin = around == nullptr ? GUI::CPoint() : around->GetAbsolutePosition();
        CLightWidgetAdapter::Move({newPosition.x + origin.x, newPosition.y + origin.y});
    }

    /// How the windowing system is asked to keep the picture: 0 not, 1 as a card, 2 as it likes. Carried for
    /// platforms that keep pictures of single widgets.
    void SetOffscreenType(int newType) { offscreenType = newType; }
    int GetOffscreenType() const { return offscreenType; }

private:
    const GUI::CLightWidget* around;
    int offscreenType = 2;
};

} // namespace Mirel::SkinEngine
