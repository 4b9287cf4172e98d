#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/Layout/EAlign.h"

#include <cstdint>

namespace Mirel::Layout
{

class CLayoutCell;
class CLayoutOptions;

/// What the elements of a skin may do with the group that they stand in or are. Every setter lays out again,
/// unless the value is what it was. GUI thread only.
class ILayoutGroup
{
public:
    /// Where the content stands in a group that is larger than its content; no effect on a layer stack.
    virtual void SetInternalAlign(EAlign hAlign, EAlign vAlign) = 0;
    virtual void SetInternalHAlign(EAlign align) = 0;
    virtual EAlign GetInternalHAlign() const = 0;
    virtual void SetInternalVAlign(EAlign align) = 0;
    virtual EAlign GetInternalVAlign() const = 0;

    /// Whether the width is the content's; otherwise it is the fixed one.
    virtual void SetAutoWidth(bool autoWidth) = 0;

    /// Both axes at once.
    virtual void SetAutoSize(bool autoSize) = 0;
    virtual void SetAutoHeight(bool autoHeight) = 0;

    /// In pixels, for the axes that are not automatic.
    virtual void SetFixedSize(const Core::CSize& size) = 0;

    /// In pixels, on both sides.
    virtual void SetHMargin(std::int32_t margin) = 0;
    virtual std::int32_t GetHMargin() const = 0;
    virtual void SetVMargin(std::int32_t margin) = 0;
    virtual std::int32_t GetVMargin() const = 0;

    /// Adds the cell at the insertion point, which moves behind it; takes it out of the group that held it
    /// before. An owned cell is destroyed with its place in the group.
    /// The result, which lives as long as that place, is the group's own copy of the options. Null, with
    /// nothing changed and the cell still the caller's, if there is no cell, if the group stands in it, or if
    /// a table has no row; null too if a listener removed the cell at once.
    virtual CLayoutOptions* AddCell(CLayoutCell* cell, const CLayoutOptions& options, bool owned) = 0;

    /// Takes the cell out, with destroy also destroys it if it was owned, and moves the insertion point to
    /// the end. A cell that is not here is left alone.
    virtual void RemoveCell(CLayoutCell* cell, bool destroy) = 0;

    /// Behind the cell; null for the head. A cell that is not here means the end.
    virtual void SetInsertionPoint(const CLayoutCell* cell) = 0;

    /// The cell in front of the insertion point; null at the head.
    virtual CLayoutCell* GetCurrentCell() const = 0;

    virtual ~ILayoutGroup() = default;
};

} // namespace Mirel::Layout
