#pragma once

#include <vector>

namespace Mirel::GUI
{

class CLightWidget;
class CWidget;

/// The light widgets that the Tab key goes to, in a native-backed widget and all that stands in it: those
/// with a keyboard target that are enabled and can be seen, and the one that has the focus now. A widget
/// comes before its children, children come in the order of joining; the light widgets of a host come before
/// its native children. Whether a click brings the focus does not matter.
std::vector<CLightWidget*> FindFocusStops(const CWidget& widget);

} // namespace Mirel::GUI
