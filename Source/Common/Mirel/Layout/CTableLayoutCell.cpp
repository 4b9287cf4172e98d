#include "Mirel/Layout/CTableLayoutCell.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/Layout/LayoutRules.h"

#include <algorithm>
#include <numeric>

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
