#include "Mirel/Layout/CGroupLayoutCell.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/Layout/LayoutRules.h"

#include <algorithm>

namespace Mirel::Layout
{

namespace
{

Core::CSize CurrentSize(const CLayoutItem& item)
{
    return item.cell->GetSize();
}

Core::CSize TargetSize(const CLayoutItem& item)
{
    return item.target;
}

/// The extent of one layer, or of a cell across the flow.
std::int64_t LayerExtent(const CLayoutItem& item, EAxis axis, const Core::CSize& size, std::int64_t margin)
{
    const std::int64_t before = item.options.HasPosition(axis) ? item.options.GetPosition(axis) : margin;
    return before + margin + Along(size, axis);
}

} // namespace

CGroupLayoutCell::CGroupLayoutCell(ELayoutType layoutType_, std::int32_t spacing_, std::int32_t hMargin_,
                                   std::int32_t vMargin_)
    : CBaseGroupLayoutCell(hMargin_, vMargin_),
      items(*this, updateCommand),
      spacing(spacing_),
      layoutType(layoutType_)
{
}

CGroupLayoutCell::~CGroupLayoutCell()
{
    CGroupLayoutCell::Clear();
}

void CGroupLayoutCell::SetLayoutType(ELayoutType newLayoutType)
{
    if (layoutType != newLayoutType)
    {
        layoutType = newLayoutType;
        Update();
    }
}

void CGroupLayoutCell::SetSpacing(std::int32_t newSpacing)
{
    if (spacing != newSpacing)
    {
        spacing = newSpacing;
        Update();
    }
}

CLayoutOptions* CGroupLayoutCell::AddCell(CLayoutCell* cell, const CLayoutOptions& options, bool owned)
{
    if (!CanHold(cell))
    {
        return nullptr;
    }
    const CWalk walk(*this);
    cell->Detach();
    CLayoutItem& item = items.Add(cell, options, owned);
    Update();
    return item.removed ? nullptr : &item.options;
}

void CGroupLayoutCell::RemoveCell(CLayoutCell* cell, bool destroy)
{
    bool removed = false;
    {
        const CWalk walk(*this);
        removed = items.Remove(cell, destroy);
    }
    if (removed)
    {
        Update();
    }
}

void CGroupLayoutCell::Clear()
{
    const CWalk walk(*this);
    items.RemoveAll(true);
    SetDirty(true);
}

void CGroupLayoutCell::SetChildrenAutoUpdate(bool newAutoUpdate)
{
    for (const CLayoutItem& item : items)
    {
        if (!item.removed)
        {
            item.cell->SetAutoUpdate(newAutoUpdate);
        }
    }
}

void CGroupLayoutCell::ComputeNaturalSize(bool recurse)
{
    const CWalk walk(*this);
    if (recurse)
    {
        for (const CLayoutItem& item : items)
        {
            if (item.IsDisplayed())
            {
                item.cell->UpdateSize();
            }
        }
    }
    // A second walk: listeners may have changed sizes that a single one would have added up already.
    measuredSize = recurse ? NaturalSizeBy(MeasuredSize) : NaturalSizeBy(CurrentSize);
    naturalSize = measuredSize;
}

template <class SizeOf>
Core::CSize CGroupLayoutCell::NaturalSizeBy(const SizeOf& sizeOf) const
{
    return IsFlow() ? FlowSizeBy(sizeOf) : StackSizeBy(sizeOf);
}

template <class SizeOf>
Core::CSize CGroupLayoutCell::FlowSizeBy(const SizeOf& sizeOf) const
{
    const EAxis main = GetMainAxis();
    const EAxis cross = CrossOf(main);
    std::int64_t length = GetMargin(main);
    std::int64_t thickness = 0;
    bool any = false;
    for (const CLayoutItem& item : items)
    {
        if (!item.IsDisplayed())
        {
            continue;
        }
        const Core::CSize size = sizeOf(item);
        // A cell with a position of its own restarts the flow.
        const std::int64_t begin = item.options.HasPosition(main) ? item.options.GetPosition(main) : length;
        length = begin + Along(size, main) + spacing;
        thickness = std::max(thickness, LayerExtent(item, cross, size, GetMargin(cross)));
        any = true;
    }
    Core::CSize natural;
    Along(natural, main) = Core::SaturateToInt32(length - (any ? spacing : 0) + GetMargin(main));
    Along(natural, cross) = Core::SaturateToInt32(thickness);
    return natural;
}

template <class SizeOf>
Core::CSize CGroupLayoutCell::StackSizeBy(const SizeOf& sizeOf) const
{
    std::int64_t width = 0;
    std::int64_t height = 0;
    for (const CLayoutItem& item : items)
    {
        if (item.IsDisplayed())
        {
            const Core::CSize size = sizeOf(item);
            width = std::max(width, LayerExtent(item, EAxis::Horizontal, size, GetHMargin()));
            height = std::max(height, LayerExtent(item, EAxis::Vertical, size, GetVMargin()));
        }
    }
    return {Core::SaturateToInt32(width), Core::SaturateToInt32(height)};
}

void CGroupLayoutCell::Arrange(const Core::CPoint& point)
{
    StorePosition(point);
    ArrangeItems(point);
}

void CGroupLayoutCell::ArrangeItems(const Core::CPoint& point)
{
    const CWalk walk(*this);
    const unsigned pass = BeginArrangePass();
    FindTargets();
    if (!GiveTargets(pass))
    {
        return;
    }
    if (IsFlow())
    {
        PlaceFlow(point, pass);
    }
    else
    {
        PlaceStack(point, pass);
    }
}

/// Finds the size of every displayed cell from its own size, its ratios and its share of the free pixels, and
/// the natural size that follows.
void CGroupLayoutCell::FindTargets()
{
    const std::int64_t width = GetInnerExtent(EAxis::Horizontal);
    const std::int64_t height = GetInnerExtent(EAxis::Vertical);
    float flexTotal = 0.0F;
    bool changed = false;
    for (CLayoutItem& item : items)
    {
        if (!item.IsDisplayed())
        {
            item.KeepSize();
            continue;
        }
        flexTotal += item.options.GetFlex();
        item.target = ApplyRatios(item, width, height);
        changed = changed || item.target != item.cell->GetOwnSize();
    }
    naturalSize = changed ? NaturalSizeBy(TargetSize) : measuredSize;
    if (IsFlow() && (flexTotal < 0.0F || flexTotal > 0.0F) && ShareFreePixels(flexTotal))
    {
        naturalSize = NaturalSizeBy(TargetSize);
    }
}

/// Whether any target changed.
bool CGroupLayoutCell::ShareFreePixels(float flexTotal)
{
    const EAxis main = GetMainAxis();
    const std::int64_t freePixels = std::int64_t{Along(GetSize(), main)} - Along(naturalSize, main);
    if (freePixels == 0)
    {
        return false;
    }
    CFlexSharing sharing(freePixels, flexTotal);
    bool changed = false;
    for (CLayoutItem& item : items)
    {
        const float flex = item.options.GetFlex();
        if (!item.IsDisplayed() || !(flex < 0.0F || flex > 0.0F))
        {
            continue;
        }
        const std::int32_t share = sharing.Next(flex);
        std::int32_t& extent = Along(item.target, main);
        extent = Core::SaturateToInt32(std::int64_t{extent} + share);
        changed = changed || share != 0;
    }
    return changed;
}

/// False if a listener on the way made the pass needless.
bool CGroupLayoutCell::GiveTargets(unsigned pass)
{
    for (const CLayoutItem& item : items)
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
    return true;
}

void CGroupLayoutCell::PlaceFlow(const Core::CPoint& point, unsigned pass)
{
    const EAxis main = GetMainAxis();
    const EAxis cross = CrossOf(main);
    std::int64_t cursor = GetContentBegin(main, point);
    for (const CLayoutItem& item : items)
    {
        if (item.removed)
        {
            continue;
        }
        Core::CPoint place;
        if (item.IsDisplayed())
        {
            const std::int64_t begin = item.options.HasPosition(main)
                                           ? std::int64_t{Along(point, main)} + item.options.GetPosition(main)
                                           : cursor;
            Along(place, main) = Core::SaturateToInt32(begin);
            Along(place, cross) = PlaceAcross(cross, item, point);
            cursor = begin + Along(item.cell->GetSize(), main) + spacing;
        }
        item.cell->Arrange(place);
        if (IsSuperseded(pass))
        {
            return;
        }
    }
}

void CGroupLayoutCell::PlaceStack(const Core::CPoint& point, unsigned pass)
{
    // Hidden cells are placed like the others.
    for (const CLayoutItem& item : items)
    {
        if (!item.removed)
        {
            item.cell->Arrange(
                {PlaceAcross(EAxis::Horizontal, item, point), PlaceAcross(EAxis::Vertical, item, point)});
            if (IsSuperseded(pass))
            {
                return;
            }
        }
    }
}

/// Where a cell stands on an axis without flow. The center is that of the whole cell, without the margins.
std::int32_t CGroupLayoutCell::PlaceAcross(EAxis axis, const CLayoutItem& item,
                                           const Core::CPoint& point) const
{
    const std::int64_t origin = Along(point, axis);
    if (item.options.HasPosition(axis))
    {
        return Core::SaturateToInt32(origin + item.options.GetPosition(axis));
    }
    const EAlign align = item.options.GetAlign(axis);
    const std::int64_t margin = align == EAlign::Center ? 0 : GetMargin(axis);
    const std::int64_t rest = std::int64_t{Along(GetSize(), axis)} - Along(item.cell->GetSize(), axis);
    const std::int64_t offset = AlignedOffset(align, rest);
    return Core::SaturateToInt32(origin + offset + (align == EAlign::End ? -margin : margin));
}

} // namespace Mirel::Layout
