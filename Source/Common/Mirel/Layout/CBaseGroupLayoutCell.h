#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/Layout/CLayoutCell.h"
#include "Mirel/Layout/CLayoutItem.h"
#include "Mirel/Layout/CLayoutScope.h"
#include "Mirel/Layout/EAxis.h"
#include "Mirel/Layout/ILayoutGroup.h"

#include <cstdint>

namespace Mirel::Layout
{

/// A cell that holds cells: margins, alignment of the content, and a size that is the content's or fixed,
/// axis by axis. How it holds them is the matter of the classes above. GUI thread only.
class CBaseGroupLayoutCell : public CLayoutCell, public virtual ILayoutGroup
{
public:
    CBaseGroupLayoutCell(std::int32_t hMargin_, std::int32_t vMargin_);

    void SetInternalAlign(EAlign hAlign, EAlign vAlign) override;
    void SetInternalHAlign(EAlign align) override;
    EAlign GetInternalHAlign() const override { return horizontal.internalAlign; }
    void SetInternalVAlign(EAlign align) override;
    EAlign GetInternalVAlign() const override { return vertical.internalAlign; }
    void SetAutoWidth(bool newAutoWidth) override;
    void SetAutoSize(bool newAutoSize) override;
    void SetAutoHeight(bool newAutoHeight) override;
    void SetFixedSize(const Core::CSize& newFixedSize) override;
    void SetHMargin(std::int32_t margin) override;
    std::int32_t GetHMargin() const override { return horizontal.margin; }
    void SetVMargin(std::int32_t margin) override;
    std::int32_t GetVMargin() const override { return vertical.margin; }

    /// Finds the natural size from the sizes of the children. With recurse their sizes are brought up to date
    /// first, and count only on axes without a ratio; without it they count as they stand.
    virtual void ComputeNaturalSize(bool recurse) = 0;

    bool GetAutoWidth() const { return horizontal.autoExtent; }
    bool GetAutoHeight() const { return vertical.autoExtent; }
    const Core::CSize& GetFixedSize() const { return fixedSize; }

    /// The size that the content takes, margins included, as the last size or arrange pass found it.
    const Core::CSize& GetNaturalSize() const { return naturalSize; }

    void UpdateSize() override;
    void SetAutoUpdate(bool newAutoUpdate) override;

protected:
    /// Stands around everything that walks over the children and can call listeners.
    class CWalk
    {
    public:
        explicit CWalk(CBaseGroupLayoutCell& group_) : group(group_) { ++group.walks; }
        CWalk(const CWalk&) = delete;
        CWalk& operator=(const CWalk&) = delete;

        ~CWalk()
        {
            if (--group.walks == 0)
            {
                group.PurgeRemoved();
            }
        }

    private:
        CLayoutScope scope;
        CBaseGroupLayoutCell& group;
    };

    /// Destroys what was removed. Called by the last walk that ends.
    virtual void PurgeRemoved() = 0;

    /// SetAutoUpdate of all children.
    virtual void SetChildrenAutoUpdate(bool newAutoUpdate) = 0;

    /// Marks the beginning of an arrange pass and gives its number.
    unsigned BeginArrangePass() { return ++arrangePass; }

    /// Whether a listener made the group arrange itself anew since: the pass has nothing left to do.
    bool IsSuperseded(unsigned pass) const { return arrangePass != pass; }

    /// Whether the cell can be taken in: it exists, and the group does not stand in it.
    bool CanHold(const CLayoutCell* cell) const;

    /// Stores without an update.
    void StoreFixedSize(const Core::CSize& newFixedSize) { fixedSize = newFixedSize; }

    std::int32_t GetMargin(EAxis axis) const { return On(axis).margin; }
    EAlign GetInternalAlign(EAxis axis) const { return On(axis).internalAlign; }

    /// What the margins leave of the extent.
    std::int64_t GetInnerExtent(EAxis axis) const;

    /// Where the content begins: behind the margin, and aligned if the cell differs from its natural size.
    std::int64_t GetContentBegin(EAxis axis, const Core::CPoint& point) const;

    /// The sizes that the cell of the item is given if only its ratios count.
    Core::CSize ApplyRatios(const CLayoutItem& item, std::int64_t width, std::int64_t height) const;

    Core::CSize naturalSize;
    /// Runs Update; listens to the options of all items.
    Core::TCommand<CLayoutCell> updateCommand;

private:
    struct CAxisSettings
    {
        std::int32_t margin = 0;
        EAlign internalAlign = EAlign::Begin;
        bool autoExtent = true;
    };

    CAxisSettings& On(EAxis axis) { return axis == EAxis::Horizontal ? horizontal : vertical; }
    const CAxisSettings& On(EAxis axis) const { return axis == EAxis::Horizontal ? horizontal : vertical; }

    CAxisSettings horizontal;
    CAxisSettings vertical;
    Core::CSize fixedSize;
    int walks = 0;
    unsigned arrangePass = 0;
};

/// The size that an item adds to the size pass: none on the axes where the group decides.
inline Core::CSize MeasuredSize(const CLayoutItem& item)
{
    Core::CSize size = item.cell->GetOwnSize();
    for (const EAxis axis : {EAxis::Horizontal, EAxis::Vertical})
    {
        if (item.options.HasRatio(axis))
        {
            Along(size, axis) = 0;
        }
    }
    return size;
}

} // namespace Mirel::Layout
