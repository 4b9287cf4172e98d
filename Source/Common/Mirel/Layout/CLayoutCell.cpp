#include "Mirel/Layout/CLayoutCell.h"

#include "Mirel/Layout/CBaseGroupLayoutCell.h"
#include "Mirel/Layout/CLayoutScope.h"

#include <utility>

namespace Mirel::Layout
{

CLayoutCell::~CLayoutCell()
{
    if (parent != nullptr)
    {
        parent->RemoveCell(this, false);
    }
}

void CLayoutCell::SetSize(const Core::CSize& newSize)
{
    if (currentSize == newSize)
    {
        return;
    }
    currentSize = newSize;
    if (!std::exchange(beingGiven, false))
    {
        ownSize = newSize;
    }
    dirty = true;
    const CLayoutScope scope;
    sizeChanged.Notify();
}

void CLayoutCell::GiveSize(const Core::CSize& newSize)
{
    beingGiven = true;
    SetSize(newSize);
    beingGiven = false;
}

void CLayoutCell::SetOwnSize(const Core::CSize& newSize)
{
    ownSize = newSize;
    SetSize(newSize);
}

void CLayoutCell::SetPosition(const Core::CPoint& point)
{
    const CLayoutScope scope;
    UpdateSize();
    Arrange(point);
}

void CLayoutCell::Relayout()
{
    SetPosition(currentPosition);
}

void CLayoutCell::Detach()
{
    if (parent != nullptr)
    {
        // Cleared first: a listener may have the cell in another group before the removal returns.
        CBaseGroupLayoutCell* left = parent;
        SetParent(nullptr);
        left->RemoveCell(this, false);
    }
}

void CLayoutCell::SetDisplayed(bool newDisplayed)
{
    if (displayed == newDisplayed)
    {
        return;
    }
    displayed = newDisplayed;
    displayChanged = true;
    Update();
}

bool CLayoutCell::IsVisible() const
{
    return IsDisplayed() && (parent == nullptr || parent->IsVisible());
}

void CLayoutCell::SetAutoUpdate(bool newAutoUpdate)
{
    autoUpdate = newAutoUpdate;
    if (autoUpdate && dirty)
    {
        Update();
    }
}

void CLayoutCell::Update()
{
    dirty = true;
    if (!autoUpdate)
    {
        return;
    }
    const CLayoutScope scope;
    const Core::CSize oldSize = GetSize();
    const Core::CSize oldOwnSize = GetOwnSize();
    UpdateSize();
    // A new own size can equal what the group gave for the old one; the group must still share anew.
    const bool keepsSize = GetSize() == oldSize && GetOwnSize() == oldOwnSize;
    if ((!displayChanged && keepsSize) || parent == nullptr)
    {
        Arrange(currentPosition);
    }
    else
    {
        parent->Update();
    }
    displayChanged = false;
}

} // namespace Mirel::Layout
