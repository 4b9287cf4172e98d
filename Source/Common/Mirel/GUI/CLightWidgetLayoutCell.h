#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/TWidgetCell.h"

namespace Mirel::GUI
{

/// The area of a light widget. GUI thread only.
class CLightWidgetLayoutCell : public TWidgetCell<CLightWidget>
{
public:
    using TWidgetCell::TWidgetCell;
};

} // namespace Mirel::GUI
