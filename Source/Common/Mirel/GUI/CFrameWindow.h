#pragma once

#include "Mirel/GUI/CWindow.h"

#include <string>

namespace Mirel::GUI
{

/// A top-level window with the desktop's frame around it. GUI thread only.
class CFrameWindow : public CWindow
{
public:
    /// Sizes are skin pixels. The title is UTF-8. The owner, which may be null, stays behind it.
    CFrameWindow(INativePlatform& platform_, const std::string& title, CSize size, bool resizable = true,
                 const CWindow* owner = nullptr);

    void SetTitle(const std::string& title);

    /// What the user may size it to; a side of 0 is not limited.
    void SetSizeLimits(CSize smallest, CSize largest);
};

} // namespace Mirel::GUI
