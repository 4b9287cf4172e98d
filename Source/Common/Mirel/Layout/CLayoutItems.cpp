#include "Mirel/Layout/CLayoutItems.h"

#include "Mirel/Layout/CLayoutScope.h"

#include <iterator>
#include <utility>

namespace Mirel::Layout
{

CLayoutItems::CLayoutItems(CBaseGroupLayoutCell& group_, Core::ICommand& optionsChanged_)
    : group(group_),
      optionsChanged(optionsChanged_)
{
}

CLayoutItem& CLayoutItems::Add(CLayoutCell* cell, const CLayoutOptions& options, bool owned)
{
    const CIterator place = items.emplace(insertionPoint, cell, options, owned);
    place->list = this;
    place->place = place;
    cell->holder = &*place;
    cell->SetParent(&group);
    place->options.GetChangedEvent().Connect(optionsChanged);
    return *place;
}

bool CLayoutItems::Remove(const CLayoutCell* cell, bool destroy)
{
    insertionPoint = items.end();
    if (FindListOf(cell) != this)
    {
        return false;
    }
    MarkRemoved(*cell->holder, destroy);
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
    item.cell->holder = nullptr;
    item.cell->SetParent(nullptr);
    if (!destroy)
    {
        item.cell.Set(item.cell.Get(), false);
    }
    item.removed = true;
    removed.push_back(item.place);
}

void CLayoutItems::Purge()
{
    // Taken out first: cells that are destroyed here may come back.
    for (const CIterator& item : std::exchange(removed, {}))
    {
        if (insertionPoint == item)
        {
            insertionPoint = std::next(item);
        }
        CLayoutScope::Bury(items, item);
    }
}

bool CLayoutItems::SetInsertionPoint(const CLayoutCell* cell)
{
    if (cell == nullptr)
    {
        insertionPoint = items.begin();
        return true;
    }
    const bool isHere = FindListOf(cell) == this;
    insertionPoint = isHere ? std::next(cell->holder->place) : items.end();
    return isHere;
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

CLayoutItems* CLayoutItems::FindListOf(const CLayoutCell* cell)
{
    return cell == nullptr || cell->holder == nullptr ? nullptr : cell->holder->list;
}

} // namespace Mirel::Layout
