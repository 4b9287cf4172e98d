#pragma once

#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/TWidgetCell.h"

namespace Mirel::GUI
{

/// The area of a native-backed widget. GUI thread only.
class CWidgetLayoutCell : public TWidgetCell<CWidget>
{
public:
    using TWidgetCell::TWidgetCell;
};

} // namespace Mirel::GUI
