#include "Mirel/Layout/CTableLayoutCell.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Mirel::Layout
{

// The rows of a table and the cells in them; CTableLayoutCell.cpp measures and places what stands here.

CTableLayoutCell::CRow::CRow(CTableLayoutCell& table_, float heightRatio_, std::int32_t fixedHeight_)
    : items(table_, *this),
      heightRatio(heightRatio_),
      fixedHeight(fixedHeight_),
      table(table_)
{
}

CTableLayoutCell::CRow* CTableLayoutCell::AddRow(float heightRatio, std::int32_t fixedHeight)
{
    const CWalk walk(*this);
    const CRows::iterator behind = currentRow == nullptr ? rows.begin() : std::next(currentRow->place);
    CRow& row = *rows.emplace(behind, *this, heightRatio, fixedHeight);
    row.place = std::prev(behind);
    ++rowCount;
    currentRow = &row;
    Update();
    return row.removed ? nullptr : &row;
}

void CTableLayoutCell::SetCurrentRow(CRow* row)
{
    if (row == nullptr)
    {
        currentRow = nullptr;
    }
    else if (&row->table == this)
    {
        currentRow = row;
        row->items.SetInsertionPoint(nullptr);
    }
}

void CTableLayoutCell::RemoveRow(CRow* row, bool destroy)
{
    if (row == nullptr || &row->table != this || row->removed)
    {
        return;
    }
    {
        const CWalk walk(*this);
        RemoveMarked(*row, destroy);
        ForgetColumns(*row);
        currentRow = GetLastRow();
        MoveInsertionPointToEnd();
    }
    Update();
}

void CTableLayoutCell::RemoveMarked(CRow& row, bool destroy)
{
    row.items.RemoveAll(destroy);
    row.removed = true;
    rowsToPurge.push_back(&row);
    removedRows.push_back(&row);
    --rowCount;
}

CTableLayoutCell::CRow* CTableLayoutCell::GetFirstRow()
{
    const auto first = std::find_if(rows.begin(), rows.end(), [](const CRow& row) { return !row.removed; });
    return first == rows.end() ? nullptr : &*first;
}

CTableLayoutCell::CRow* CTableLayoutCell::GetLastRow()
{
    const auto last = std::find_if(rows.rbegin(), rows.rend(), [](const CRow& row) { return !row.removed; });
    return last == rows.rend() ? nullptr : &*last;
}

std::int32_t CTableLayoutCell::GetColumnCount() const
{
    if (columnCount < 0)
    {
        columnCount = 0;
        for (const CRow& row : rows)
        {
            columnCount = std::max(columnCount, row.removed ? 0 : row.columnCount);
        }
    }
    return columnCount;
}

/// Of a row that has fewer columns from now on. Counted when they are asked for: many rows may go at once.
void CTableLayoutCell::ForgetColumns(const CRow& row)
{
    if (row.columnCount >= columnCount)
    {
        columnCount = -1;
    }
}

CLayoutOptions* CTableLayoutCell::AddCell(CLayoutCell* cell, const CLayoutOptions& options, bool owned)
{
    if (currentRow == nullptr || !CanHold(cell))
    {
        return nullptr;
    }
    const CWalk walk(*this);
    cell->Detach();
    if (currentRow == nullptr)
    {
        return nullptr; // A listener of the cell's former group removed the last row.
    }
    CLayoutItem& item = currentRow->items.Add(cell, options, owned);
    ++currentRow->columnCount;
    columnCount = columnCount < 0 ? columnCount : std::max(columnCount, currentRow->columnCount);
    Update();
    return item.removed ? nullptr : &item.options;
}

CTableLayoutCell::CRow* CTableLayoutCell::FindRow(const CLayoutCell* cell) const
{
    CLayoutItems* const list = CLayoutItems::FindListOf(cell);
    return list == nullptr || &list->GetGroup() != this ? nullptr : &static_cast<CRow::CItems*>(list)->row;
}

void CTableLayoutCell::MoveInsertionPointToEnd()
{
    if (currentRow != nullptr)
    {
        currentRow->items.MoveInsertionPointToEnd();
    }
}

void CTableLayoutCell::RemoveCell(CLayoutCell* cell, bool destroy)
{
    MoveInsertionPointToEnd();
    CRow* const row = FindRow(cell);
    if (row == nullptr)
    {
        return;
    }
    {
        const CWalk walk(*this);
        row->items.Remove(cell, destroy);
        rowsToPurge.push_back(row);
        ForgetColumns(*row);
        --row->columnCount;
    }
    Update();
}

void CTableLayoutCell::SetInsertionPoint(const CLayoutCell* cell)
{
    CRow* const row = FindRow(cell);
    currentRow = row != nullptr ? row : cell == nullptr ? GetFirstRow() : GetLastRow();
    if (currentRow != nullptr)
    {
        currentRow->items.SetInsertionPoint(cell);
    }
}

CLayoutCell* CTableLayoutCell::GetCurrentCell() const
{
    return currentRow == nullptr ? nullptr : currentRow->items.GetCurrentCell();
}

void CTableLayoutCell::Clear()
{
    const CWalk walk(*this);
    for (CRow& row : rows)
    {
        if (!row.removed)
        {
            RemoveMarked(row, true);
        }
    }
    columnCount = 0;
    currentRow = nullptr;
    SetDirty(true);
}

void CTableLayoutCell::PurgeRemoved()
{
    for (CRow* row : std::exchange(rowsToPurge, {}))
    {
        row->items.Purge();
    }
    for (const CRow* row : std::exchange(removedRows, {}))
    {
        rows.erase(row->place);
    }
}

} // namespace Mirel::Layout
