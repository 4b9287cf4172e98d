#pragma once

#include "Mirel/Layout/CBaseGroupLayoutCell.h"
#include "Mirel/Layout/CLayoutItems.h"
#include "Mirel/Layout/ELayoutType.h"

#include <cstdint>

namespace Mirel::Layout
{

/// A row, a column or a layer stack of cells. In a row and a column, cells with a flex weight share the
/// pixels that are left over, or give up those that are missing. Arranging allocates nothing. GUI thread
/// only.
class CGroupLayoutCell : public CBaseGroupLayoutCell
{
public:
    /// Spacing and margins in pixels; the spacing stands between the displayed cells of a row or column.
    explicit CGroupLayoutCell(ELayoutType layoutType_ = ELayoutType::Row, std::int32_t spacing_ = 0,
                              std::int32_t hMargin_ = 0, std::int32_t vMargin_ = 0);
    ~CGroupLayoutCell() override;

    /// The old cells are laid out as the new type says, each by its own options.
    virtual void SetLayoutType(ELayoutType newLayoutType);
    ELayoutType GetLayoutType() const { return layoutType; }

    virtual void SetSpacing(std::int32_t newSpacing);
    std::int32_t GetSpacing() const { return spacing; }

    void ComputeNaturalSize(bool recurse) override;
    CLayoutOptions* AddCell(CLayoutCell* cell, const CLayoutOptions& options, bool owned) override;
    void RemoveCell(CLayoutCell* cell, bool destroy) override;
    void SetInsertionPoint(const CLayoutCell* cell) override { items.SetInsertionPoint(cell); }
    CLayoutCell* GetCurrentCell() const override { return items.GetCurrentCell(); }

    /// Does not lay out what is left, but marks the group for it.
    void Clear() override;
    void Arrange(const Core::CPoint& point) override;

protected:
    void PurgeRemoved() override { items.Purge(); }
    void SetChildrenAutoUpdate(bool newAutoUpdate) override;

    /// The arrange pass without the group's own position.
    void ArrangeItems(const Core::CPoint& point);

private:
    EAxis GetMainAxis() const { return layoutType == ELayoutType::Row ? EAxis::Horizontal : EAxis::Vertical; }

    bool IsFlow() const { return layoutType == ELayoutType::Row || layoutType == ELayoutType::Column; }

    template <class SizeOf>
    Core::CSize NaturalSizeBy(const SizeOf& sizeOf) const;
    template <class SizeOf>
    Core::CSize FlowSizeBy(const SizeOf& sizeOf) const;
    template <class SizeOf>
    Core::CSize StackSizeBy(const SizeOf& sizeOf) const;

    void FindTargets();
    bool ShareFreePixels(float flexTotal);
    bool GiveTargets(unsigned pass);
    void PlaceFlow(const Core::CPoint& point, unsigned pass);
    void PlaceStack(const Core::CPoint& point, unsigned pass);
    std::int32_t PlaceAcross(EAxis axis, const CLayoutItem& item, const Core::CPoint& point) const;

    CLayoutItems items;
    std::int32_t spacing;
    ELayoutType layoutType;
    Core::CSize measuredSize; ///< The natural size before an arrange pass changed sizes of children.
};

} // namespace Mirel::Layout
