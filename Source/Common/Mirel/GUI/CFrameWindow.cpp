#include "Mirel/GUI/CFrameWindow.h"

#include <algorithm>

namespace Mirel::GUI
{

namespace
{

SNativeWindowOptions MakeOptions(const INativePlatform& platform, const std::string& title, CSize size,
                                 bool resizable, const CWindow* owner)
{
    const int scale = platform.GetScale();
    SNativeWindowOptions options;
    options.kind = owner == nullptr ? ENativeWindowKind::TopLevel : ENativeWindowKind::Dialog;
    options.size = {size.width * scale, size.height * scale};
    options.owner = owner == nullptr ? nullptr : owner->GetNativeWindow();
    options.title = title;
    options.isResizable = resizable;
    return options;
}

} // namespace

CFrameWindow::CFrameWindow(INativePlatform& platform_, const std::string& title, CSize size, bool resizable,
                           const CWindow* owner)
    : CWindow(platform_, MakeOptions(platform_, title, size, resizable, owner))
{
}

void CFrameWindow::SetTitle(const std::string& title)
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->SetTitle(title);
    }
}

void CFrameWindow::SetSizeLimits(CSize smallest, CSize largest)
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->SetSizeLimits(ToDevice(smallest), ToDevice(largest));
    }
}

} // namespace Mirel::GUI
