#include "Mirel/Layout/CLayoutItems.h"

#include "Mirel/Layout/CLayoutScope.h"

#include <algorithm>
#include <iterator>

namespace Mirel::Layout
{

CLayoutItems::CLayoutItems(CBaseGroupLayoutCell& group_, Core::ICommand& optionsChanged_)
    : group(group_),
      optionsChanged(optionsChanged_)
{
}

CLayoutItem& CLayoutItems::Add(CLayoutCell* cell, const CLayoutOptions& options, bool owned)
{
    CLayoutItem& item = *items.emplace(insertionPoint, cell, options, owned);
    cell->SetParent(&group);
    item.options.GetChangedEvent().Connect(optionsChanged);
    return item;
}

bool CLayoutItems::Remove(const CLayoutCell* cell, bool destroy)
{
    insertionPoint = items.end();
    const CIterator found = Find(cell);
    if (found == items.end())
    {
        return false;
    }
    MarkRemoved(*found, destroy);
    return true;
}

void CLayoutItems::RemoveAll(bool destroy)
{
    insertionPoint = items.end();
    for (CLayoutItem& item : items)
    {
        if (!item.removed)
        {
            MarkRemoved(item, destroy);
        }
    }
}

void CLayoutItems::MarkRemoved(CLayoutItem& item, bool destroy)
{
    item.options.GetChangedEvent().Disconnect(&optionsChanged);
    item.cell->SetParent(nullptr);
    if (!destroy)
    {
        item.cell.Set(item.cell.Get(), false);
    }
    item.removed = true;
    hasRemoved = true;
}

void CLayoutItems::Purge()
{
    if (!hasRemoved)
    {
        return;
    }
    hasRemoved = false;
    for (CIterator item = items.begin(); item != items.end();)
    {
        const CIterator next = std::next(item);
        if (item->removed)
        {
            if (insertionPoint == item)
            {
                insertionPoint = next;
            }
            CLayoutScope::Bury(items, item);
        }
        item = next;
    }
}

bool CLayoutItems::SetInsertionPoint(const CLayoutCell* cell)
{
    if (cell == nullptr)
    {
        insertionPoint = items.begin();
        return true;
    }
    insertionPoint = items.end();
    const CIterator found = Find(cell);
    if (found == items.end())
    {
        return false;
    }
    insertionPoint = std::next(found);
    return true;
}

CLayoutCell* CLayoutItems::GetCurrentCell() const
{
    for (CConstIterator item = insertionPoint; item != items.begin();)
    {
        --item;
        if (!item->removed)
        {
            return item->cell.Get();
        }
    }
    return nullptr;
}

CLayoutItems::CIterator CLayoutItems::Find(const CLayoutCell* cell)
{
    return std::find_if(items.begin(), items.end(),
                        [cell](const CLayoutItem& item) { return !item.removed && item.cell.Get() == cell; });
}

} // namespace Mirel::Layout
