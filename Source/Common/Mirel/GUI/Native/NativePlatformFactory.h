#pragma once

#include "Mirel/GUI/Native/INativePlatform.h"

#include <memory>
#include <string>

namespace Mirel::GUI
{

struct SNativePlatformOptions
{
    std::string display;      ///< of the X server; empty takes the one of the environment
    bool isOffscreen = false; ///< keeps off all displays
    int scale = 0;            ///< 1 to 4; 0 asks the display
};

/// The platform of one editor or program: X11 if its display can be opened, else one without a display.
/// Never none. The loop must outlive it. GUI thread only.
std::unique_ptr<INativePlatform> CreateNativePlatform(CNativeRunLoop& loop,
                                                      const SNativePlatformOptions& options = {});

} // namespace Mirel::GUI
