#pragma once

#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <string_view>
#include <vector>

namespace Mirel::GUI
{

/// The monitors, the primary one first; the whole screen if the server does not tell.
std::vector<SNativeScreen> FindScreens(const CX11Connection& connection);

/// Device pixels per skin pixel, 1 to 4, of a resource text such as "Xft.dpi:\t192\n": the resolution in
/// whole multiples of 96 dots an inch, halves upward. 1 without a resolution.
int ScaleOfResources(std::string_view resources);

/// The same for the resources of the connection's screen.
int FindScale(const CX11Connection& connection);

} // namespace Mirel::GUI
