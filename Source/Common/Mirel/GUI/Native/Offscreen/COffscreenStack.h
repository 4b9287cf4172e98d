#pragma once

#include "Mirel/Core/Geometry.h"

#include <vector>

namespace Mirel::GUI
{

class COffscreenWindow;

/// The windows of a screen, one in front of the other. None is owned. GUI thread only.
class COffscreenStack
{
public:
    /// In front of all.
    void Add(COffscreenWindow& window) { windows.push_back(&window); }
    void Remove(COffscreenWindow& window) { std::erase(windows, &window); }
    void Raise(COffscreenWindow& window);

    bool Has(const COffscreenWindow* window) const;

    /// From the back. A copy, for who calls out to the windows: they may come and go meanwhile.
    std::vector<COffscreenWindow*> GetAll() const { return windows; }
    int GetCount() const { return static_cast<int>(windows.size()); }

    /// From the back; null out of range.
    COffscreenWindow* Get(int index) const;

    /// The front one that is shown there, in device pixels of the screen. Tooltips let the pointer through.
    COffscreenWindow* FindAt(Core::CPoint point) const;

    /// The front one of the menus that are shown.
    COffscreenWindow* FindTopMenu() const;

private:
    std::vector<COffscreenWindow*> windows; ///< From the back.
};

} // namespace Mirel::GUI
