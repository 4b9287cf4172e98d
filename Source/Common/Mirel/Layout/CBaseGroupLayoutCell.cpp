#include "Mirel/Layout/CBaseGroupLayoutCell.h"

#include "Mirel/Layout/LayoutRules.h"

#include <utility>

namespace Mirel::Layout
{

namespace
{

/// Whether it changed anything.
template <class T>
bool Assign(T& field, const T& value)
{
    if (field == value)
    {
        return false;
    }
    field = value;
    return true;
}

} // namespace

CBaseGroupLayoutCell::CBaseGroupLayoutCell(std::int32_t hMargin_, std::int32_t vMargin_)
    : updateCommand(this, &CLayoutCell::Update)
{
    horizontal.margin = hMargin_;
    vertical.margin = vMargin_;
}

void CBaseGroupLayoutCell::SetInternalAlign(EAlign hAlign, EAlign vAlign)
{
    const bool hChanged = Assign(horizontal.internalAlign, hAlign);
    const bool vChanged = Assign(vertical.internalAlign, vAlign);
    if (hChanged || vChanged)
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetInternalHAlign(EAlign align)
{
    SetInternalAlign(align, vertical.internalAlign);
}

void CBaseGroupLayoutCell::SetInternalVAlign(EAlign align)
{
    SetInternalAlign(horizontal.internalAlign, align);
}

void CBaseGroupLayoutCell::SetAutoWidth(bool newAutoWidth)
{
    if (Assign(horizontal.autoExtent, newAutoWidth))
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetAutoSize(bool newAutoSize)
{
    const bool widthChanged = Assign(horizontal.autoExtent, newAutoSize);
    const bool heightChanged = Assign(vertical.autoExtent, newAutoSize);
    if (widthChanged || heightChanged)
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetAutoHeight(bool newAutoHeight)
{
    if (Assign(vertical.autoExtent, newAutoHeight))
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetFixedSize(const Core::CSize& newFixedSize)
{
    if (Assign(fixedSize, newFixedSize))
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetHMargin(std::int32_t margin)
{
    if (Assign(horizontal.margin, margin))
    {
        Update();
    }
}

void CBaseGroupLayoutCell::SetVMargin(std::int32_t margin)
{
    if (Assign(vertical.margin, margin))
    {
        Update();
    }
}

void CBaseGroupLayoutCell::UpdateSize()
{
    if (!IsDirty())
    {
        return;
    }
    const CWalk walk(*this);
    ComputeNaturalSize(true);
    SetOwnSize({horizontal.autoExtent ? naturalSize.width : fixedSize.width,
                vertical.autoExtent ? naturalSize.height : fixedSize.height});
    // Setting the size marked the cell again.
    SetDirty(false);
}

void CBaseGroupLayoutCell::SetAutoUpdate(bool newAutoUpdate)
{
    const CWalk walk(*this);
    SetChildrenAutoUpdate(newAutoUpdate);
    CLayoutCell::SetAutoUpdate(newAutoUpdate);
}

bool CBaseGroupLayoutCell::CanHold(const CLayoutCell* cell) const
{
    for (const CLayoutCell* around = this; around != nullptr; around = around->GetParent())
    {
        if (around == cell)
        {
            return false;
        }
    }
    return cell != nullptr;
}

std::int64_t CBaseGroupLayoutCell::GetInnerExtent(EAxis axis) const
{
    return Along(GetSize(), axis) - 2 * std::int64_t{On(axis).margin};
}

std::int64_t CBaseGroupLayoutCell::GetContentBegin(EAxis axis, const Core::CPoint& point) const
{
    const std::int64_t rest = std::int64_t{Along(GetSize(), axis)} - Along(naturalSize, axis);
    return std::int64_t{Along(point, axis)} + On(axis).margin + AlignedOffset(On(axis).internalAlign, rest);
}

Core::CSize CBaseGroupLayoutCell::ApplyRatios(const CLayoutItem& item, std::int64_t width,
                                              std::int64_t height) const
{
    Core::CSize size = item.cell->GetOwnSize();
    if (item.options.HasRatio(EAxis::Horizontal))
    {
        size.width = RatioExtent(width, item.options.GetWidthRatio());
    }
    if (item.options.HasRatio(EAxis::Vertical))
    {
        size.height = RatioExtent(height, item.options.GetHeightRatio());
    }
    return size;
}

} // namespace Mirel::Layout
