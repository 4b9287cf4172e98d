#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/Geometry.h"
#include "Mirel/Core/IUpdate.h"

namespace Mirel::Layout
{

class CBaseGroupLayoutCell;
struct CLayoutItem;

/// A rectangle of the layout. Layout runs in two passes: UpdateSize finds sizes from the leaves up, Arrange
/// places from the root down and hands out ratios and free pixels. Update does both, as far up and down as a
/// change reaches.
///
/// A cell has a size of its own, from its last size pass or from SetSize, and may be given another by its
/// group. Every arrangement starts from the own sizes, so that it never depends on the ones before it.
///
/// GUI thread only. Listeners of the events here may change the tree and remove cells from their groups;
/// those cells are destroyed once the layout under way is done. Destroying a cell directly from such a
/// listener is the caller's error.
class CLayoutCell : public virtual Core::IUpdate
{
public:
    CLayoutCell() = default;
    CLayoutCell(const CLayoutCell&) = delete;
    CLayoutCell& operator=(const CLayoutCell&) = delete;

    virtual Core::CSize GetSize() const { return currentSize; }

    /// Fires on every change of the size.
    virtual Core::IEventProvider& GetSizeChangedEvent() const { return sizeChanged; }

    /// Leaves the group that still holds the cell.
    ~CLayoutCell() override;

    /// Stores the size, marks the cell for the next size pass and fires. Does not lay out.
    virtual void SetSize(const Core::CSize& newSize);

    /// Removes all children.
    virtual void Clear() = 0;

    /// Lays the cell and all below it out at the point, in the coordinates of the enclosing widget.
    virtual void SetPosition(const Core::CPoint& point);

    /// Lays out again where the cell stands.
    virtual void Relayout();

    /// The size pass: brings the size up to date if it is marked for that.
    virtual void UpdateSize() {}

    /// The arrange pass: takes the size as it is, and puts the cell and all below it in place.
    virtual void Arrange(const Core::CPoint& point) = 0;

    virtual bool HasParent() const { return parent != nullptr; }

    /// For the group that takes or drops the cell.
    virtual void SetParent(CBaseGroupLayoutCell* newParent) { parent = newParent; }

    /// Takes the cell out of its group. It is not destroyed; if the group owned it, the caller does now.
    virtual void Detach();

    /// Whether the cell takes room in rows, columns and tables. Always reaches the parent's layout.
    virtual void SetDisplayed(bool newDisplayed);
    virtual bool IsDisplayed() const { return displayed; }

    /// Whether the cell and all cells around it are displayed.
    virtual bool IsVisible() const;

    /// Whether changes are laid out at once. While off they only mark the cell; turning on takes them up.
    virtual void SetAutoUpdate(bool newAutoUpdate);
    virtual bool GetAutoUpdate() const { return autoUpdate; }

    /// To be called after a change to the content: lays out again, from the lowest cell around the change
    /// that keeps its size.
    void Update() override;

    CBaseGroupLayoutCell* GetParent() const { return parent; }

    /// Where the last Arrange put the cell.
    const Core::CPoint& GetPosition() const { return currentPosition; }

    /// The size without what the group added: that of the last size pass, or the last one set from outside.
    const Core::CSize& GetOwnSize() const { return ownSize; }

    /// SetSize for the arrange pass of the group: leaves the own size as it is.
    void GiveSize(const Core::CSize& newSize);

protected:
    /// SetSize for the size pass of the cell itself: the size becomes the own size.
    void SetOwnSize(const Core::CSize& newSize);

    bool IsDirty() const { return dirty; }
    void SetDirty(bool newDirty) { dirty = newDirty; }
    void StorePosition(const Core::CPoint& point) { currentPosition = point; }

private:
    friend class CLayoutItems;

    bool dirty = true;
    Core::CPoint currentPosition;
    Core::CSize currentSize;
    CBaseGroupLayoutCell* parent = nullptr;
    CLayoutItem* holder = nullptr; ///< Kept by the list that the item stands in.
    mutable Core::CEventProvider sizeChanged;
    bool autoUpdate = false;
    bool displayed = true;
    bool displayChanged = false;
    bool beingGiven = false; ///< The size that is being set comes from the group.
    Core::CSize ownSize;
};

} // namespace Mirel::Layout
