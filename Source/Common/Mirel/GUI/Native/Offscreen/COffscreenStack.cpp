#include "Mirel/GUI/Native/Offscreen/COffscreenStack.h"

#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"

#include <algorithm>

namespace Mirel::GUI
{

void COffscreenStack::Raise(COffscreenWindow& window)
{
    Remove(window);
    Add(window);
}

bool COffscreenStack::Has(const COffscreenWindow* window) const
{
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

COffscreenWindow* COffscreenStack::Get(int index) const
{
    return index >= 0 && index < GetCount() ? windows[static_cast<std::size_t>(index)] : nullptr;
}

COffscreenWindow* COffscreenStack::FindAt(Core::CPoint point) const
{
    const auto found =
        std::find_if(windows.rbegin(), windows.rend(),
                     [point](const COffscreenWindow* window)
                     {
                         return window->IsShown() && window->GetKind() != ENativeWindowKind::Tooltip &&
                                Graphics::CRect(window->GetPosition(), window->GetSize()).Contains(point);
                     });
    return found == windows.rend() ? nullptr : *found;
}

COffscreenWindow* COffscreenStack::FindTopMenu() const
{
    const auto found =
        std::find_if(windows.rbegin(), windows.rend(),
                     [](const COffscreenWindow* window)
                     { return window->IsShown() && window->GetKind() == ENativeWindowKind::Menu; });
    return found == windows.rend() ? nullptr : *found;
}

} // namespace Mirel::GUI
