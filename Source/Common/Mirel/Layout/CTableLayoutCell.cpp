#include "Mirel/Layout/CTableLayoutCell.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/Layout/LayoutRules.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace Mirel::Layout
{

namespace
{

std::int64_t Sum(const std::vector<std::int32_t>& values)
{
    return std::accumulate(values.begin(), values.end(), std::int64_t{0});
}

/// Where a cell stands in its box on one axis.
std::int64_t BoxOffset(EAxis axis, const CLayoutItem& item, std::int32_t boxExtent)
{
    const std::int64_t rest = std::int64_t{boxExtent} - Along(item.cell->GetSize(), axis);
    return AlignedOffset(item.options.GetAlign(axis), rest);
}

} // namespace

CTableLayoutCell::CRow::CRow(CTableLayoutCell& table_, float heightRatio_, std::int32_t fixedHeight_)
    : items(table_, *this),
      heightRatio(heightRatio_),
      fixedHeight(fixedHeight_),
      table(table_)
{
}

CTableLayoutCell::CTableLayoutCell(std::int32_t hSpacing_, std::int32_t vSpacing_, std::int32_t hMargin_,
                                   std::int32_t vMargin_)
    : CBaseGroupLayoutCell(hMargin_, vMargin_),
      hSpacing(hSpacing_),
      vSpacing(vSpacing_)
{
}

CTableLayoutCell::~CTableLayoutCell()
{
    CTableLayoutCell::Clear();
}

void CTableLayoutCell::SetHSpacing(std::int32_t newSpacing)
{
    if (hSpacing != newSpacing)
    {
        hSpacing = newSpacing;
        Update();
    }
}

void CTableLayoutCell::SetVSpacing(std::int32_t newSpacing)
{
    if (vSpacing != newSpacing)
    {
        vSpacing = newSpacing;
        Update();
    }
}

/// Calls call(CRow&, std::int32_t& rowHeight) for every row whose height is known.
template <class Call>
void CTableLayoutCell::ForEachRow(const Call& call)
{
    std::size_t index = 0;
    for (CRow& row : rows)
    {
        if (!row.removed && index < extents.rowHeights.size())
        {
            call(row, extents.rowHeights[index]);
            ++index;
        }
    }
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

void CTableLayoutCell::SetChildrenAutoUpdate(bool newAutoUpdate)
{
    for (const CRow& row : rows)
    {
        for (const CLayoutItem& item : row.items)
        {
            if (!item.removed)
            {
                item.cell->SetAutoUpdate(newAutoUpdate);
            }
        }
    }
}

void CTableLayoutCell::ComputeNaturalSize(bool recurse)
{
    const CWalk walk(*this);
    if (recurse)
    {
        for (const CRow& row : rows)
        {
            for (const CLayoutItem& item : row.items)
            {
                if (item.IsDisplayed())
                {
                    item.cell->UpdateSize();
                }
            }
        }
        FindExtents(MeasuredSize, true);
    }
    else
    {
        FindExtents([](const CLayoutItem& item) { return item.cell->GetSize(); }, false);
    }
    naturalSize = NaturalSizeOfExtents();
    measured = extents;
    measuredSize = naturalSize;
}

/// A row with a ratio loses its height only with recurse: otherwise the one that the table gave it stands.
template <class SizeOf>
void CTableLayoutCell::FindExtents(const SizeOf& sizeOf, bool recurse)
{
    extents.columnWidths.assign(static_cast<std::size_t>(GetColumnCount()), 0);
    extents.rowHeights.resize(static_cast<std::size_t>(rowCount), 0);
    ForEachRow(
        [&](const CRow& row, std::int32_t& rowHeight)
        {
            if (!row.HasRatio() || recurse)
            {
                rowHeight = std::max(row.fixedHeight, 0);
            }
            std::size_t column = 0;
            for (const CLayoutItem& item : row.items)
            {
                if (!item.IsDisplayed())
                {
                    continue;
                }
                const Core::CSize size = sizeOf(item);
                std::int32_t& width = extents.columnWidths[column];
                width = std::max(width, size.width);
                ++column;
                if (!row.HasFixedHeight() && !row.HasRatio())
                {
                    rowHeight = std::max(rowHeight, size.height);
                }
            }
        });
}

Core::CSize CTableLayoutCell::NaturalSizeOfExtents() const
{
    const std::int64_t width = (std::int64_t{GetColumnCount()} - 1) * hSpacing +
                               2 * std::int64_t{GetHMargin()} + Sum(extents.columnWidths);
    const std::int64_t height =
        (std::int64_t{rowCount} - 1) * vSpacing + 2 * std::int64_t{GetVMargin()} + Sum(extents.rowHeights);
    return {Core::SaturateToInt32(width), Core::SaturateToInt32(height)};
}

void CTableLayoutCell::Arrange(const Core::CPoint& point)
{
    const CWalk walk(*this);
    StorePosition(point);
    if (measured.columnWidths.size() != static_cast<std::size_t>(GetColumnCount()) ||
        measured.rowHeights.size() != static_cast<std::size_t>(rowCount))
    {
        return;
    }
    const unsigned pass = BeginArrangePass();
    FindTargets();
    if (GiveTargets(pass))
    {
        Place(point, pass);
    }
}

/// Finds the size of every displayed cell from its own size and its ratios, and the rows, columns and natural
/// size that follow.
void CTableLayoutCell::FindTargets()
{
    extents = measured;
    naturalSize = measuredSize;
    const std::int64_t innerHeight = GetInnerExtent(EAxis::Vertical);
    bool changed = false;
    ForEachRow(
        [&](CRow& row, std::int32_t& rowHeight)
        {
            if (row.HasRatio())
            {
                rowHeight = RatioExtent(innerHeight, row.heightRatio);
                changed = true;
            }
            changed = FindRowTargets(row, rowHeight) || changed;
        });
    if (changed)
    {
        FindExtents([](const CLayoutItem& item) { return item.target; }, false);
        naturalSize = NaturalSizeOfExtents();
    }
}

/// Whether a cell is given another size than its own.
bool CTableLayoutCell::FindRowTargets(CRow& row, std::int32_t rowHeight)
{
    bool changed = false;
    for (CLayoutItem& item : row.items)
    {
        if (!item.IsDisplayed())
        {
            item.KeepSize();
            continue;
        }
        item.target = ApplyRatios(item, GetInnerExtent(EAxis::Horizontal), rowHeight);
        changed = changed || item.target != item.cell->GetOwnSize();
    }
    return changed;
}

/// False if a listener on the way made the pass needless.
bool CTableLayoutCell::GiveTargets(unsigned pass)
{
    for (const CRow& row : rows)
    {
        for (const CLayoutItem& item : row.items)
        {
            if (item.IsDisplayed())
            {
                item.cell->GiveSize(item.target);
                if (IsSuperseded(pass))
                {
                    return false;
                }
            }
        }
    }
    return true;
}

void CTableLayoutCell::Place(const Core::CPoint& point, unsigned pass)
{
    const std::int64_t left = GetContentBegin(EAxis::Horizontal, point);
    std::int64_t top = GetContentBegin(EAxis::Vertical, point);
    std::size_t index = 0;
    for (const CRow& row : rows)
    {
        // Listeners may have added and removed rows without a new pass.
        if (row.removed || index >= extents.rowHeights.size())
        {
            continue;
        }
        const std::int32_t rowHeight = extents.rowHeights[index];
        if (!PlaceRow(row, left, top, rowHeight, pass))
        {
            return;
        }
        top += std::int64_t{rowHeight} + vSpacing;
        ++index;
    }
}

/// False if a listener on the way made the pass needless.
bool CTableLayoutCell::PlaceRow(const CRow& row, std::int64_t left, std::int64_t top, std::int32_t rowHeight,
                                unsigned pass)
{
    std::size_t column = 0;
    for (const CLayoutItem& item : row.items)
    {
        if (item.removed)
        {
            continue;
        }
        Core::CPoint place;
        if (item.IsDisplayed() && column < extents.columnWidths.size())
        {
            const std::int32_t width = extents.columnWidths[column];
            place.x = Core::SaturateToInt32(left + BoxOffset(EAxis::Horizontal, item, width));
            place.y = Core::SaturateToInt32(top + BoxOffset(EAxis::Vertical, item, rowHeight));
            left += std::int64_t{width} + hSpacing;
            ++column;
        }
        item.cell->Arrange(place);
        if (IsSuperseded(pass))
        {
            return false;
        }
    }
    return true;
}

} // namespace Mirel::Layout
