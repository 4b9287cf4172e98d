#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Layout/CLayoutItem.h"

#include <list>
#include <vector>

namespace Mirel::Layout
{

class CBaseGroupLayoutCell;

/// The cells of a group, or of a row of a table, in their order, and the insertion point among them. Removed
/// items keep their place, marked, until Purge: whoever walks over the list must stand a removal meanwhile.
/// GUI thread only.
class CLayoutItems
{
public:
    using CIterator = std::list<CLayoutItem>::iterator;
    using CConstIterator = std::list<CLayoutItem>::const_iterator;

    /// Both must outlive the list; the command runs when the options of an item change.
    CLayoutItems(CBaseGroupLayoutCell& group_, Core::ICommand& optionsChanged_);
    CLayoutItems(const CLayoutItems&) = delete;
    CLayoutItems& operator=(const CLayoutItems&) = delete;
    ~CLayoutItems() = default;

    /// Inserts the cell, and sets the insertion point behind it.
    CLayoutItem& Add(CLayoutCell* cell, const CLayoutOptions& options, bool owned);

    /// Marks the cell's item as removed and sets the insertion point to the end. A cell that is owned goes
    /// with the item if destroy is set, else is the caller's. False, with nothing but the insertion point
    /// changed, if the cell is not here.
    bool Remove(const CLayoutCell* cell, bool destroy);

    /// The list that holds the cell, whichever that is; null for none.
    static CLayoutItems* FindListOf(const CLayoutCell* cell);

    CBaseGroupLayoutCell& GetGroup() const { return group; }

    /// Marks all items as removed.
    void RemoveAll(bool destroy);

    /// Destroys the items that are marked as removed.
    void Purge();

    /// Behind the cell; null for the head. False, with the insertion point at the end, if the cell is not
    /// here.
    bool SetInsertionPoint(const CLayoutCell* cell);

    void MoveInsertionPointToEnd() { insertionPoint = items.end(); }

    /// The cell in front of the insertion point, or null.
    CLayoutCell* GetCurrentCell() const;

    CIterator begin() { return items.begin(); }
    CIterator end() { return items.end(); }
    CConstIterator begin() const { return items.begin(); }
    CConstIterator end() const { return items.end(); }

private:
    void MarkRemoved(CLayoutItem& item, bool destroy);

    CBaseGroupLayoutCell& group;
    Core::ICommand& optionsChanged;
    std::list<CLayoutItem> items;
    CIterator insertionPoint = items.end();
    std::vector<CIterator> removed; ///< What Purge destroys.
};

} // namespace Mirel::Layout
