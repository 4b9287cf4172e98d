#pragma once

#include "Mirel/GUI/PointMath.h"

namespace Mirel::GUI
{

class CLightWidget;
class CWidget;

/// The deepest native-backed widget under a point in the coordinates of the given one, which stands at or
/// above it; null if all let the point through. What is hidden or not enabled does, with all in it.
CWidget* FindWidget(CWidget& widget, CPoint point);

/// The deepest light widget that takes the mouse under a point in the coordinates of the given one, whose own
/// area is not asked. The pixels of a widget's left and top edges are not in it.
CLightWidget* FindLightWidget(CLightWidget& widget, CPoint point);

} // namespace Mirel::GUI
