#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/Layout/CLayoutCell.h"
#include "Mirel/Layout/CLayoutOptions.h"

#include <list>

namespace Mirel::Layout
{

class CLayoutItems;

/// A cell in a group or in a row of a table, with what it asks of it.
struct CLayoutItem
{
    CLayoutItem(CLayoutCell* cell_, const CLayoutOptions& options_, bool owned_)
        : options(options_),
          target(cell_->GetSize()),
          cell(cell_, owned_)
    {
    }

    /// Whether the item takes room.
    bool IsDisplayed() const { return !removed && cell->IsDisplayed(); }

    /// For an arrange pass that gives the cell no size: a listener may display it before the pass is done.
    void KeepSize()
    {
        if (!removed)
        {
            target = cell->GetSize();
        }
    }

    CLayoutOptions options;
    Core::CSize target;   ///< The size that the arrange pass under way gives to the cell.
    bool removed = false; ///< The item stands in its list only until the walks over it are done.
    Core::TOwnership<CLayoutCell> cell;
    CLayoutItems* list = nullptr;           ///< That the item stands in.
    std::list<CLayoutItem>::iterator place; ///< There.
};

} // namespace Mirel::Layout
