#pragma once

#include "Mirel/Layout/CBaseGroupLayoutCell.h"
#include "Mirel/Layout/CLayoutItems.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <vector>

namespace Mirel::Layout
{

/// Rows of cells whose columns line up. A column is as wide as its widest displayed cell, a row as high as
/// its highest one unless its height is given. Hidden cells take no column: those behind them move up. The
/// flex weights and positions of the cells have no effect. GUI thread only.
class CTableLayoutCell : public CBaseGroupLayoutCell
{
public:
    /// The height of a row that has none given.
    static constexpr std::int32_t noHeight = -1;

    /// One row of a table, which owns it.
    class CRow
    {
    public:
        CRow(CTableLayoutCell& table_, float heightRatio_, std::int32_t fixedHeight_);
        CRow(const CRow&) = delete;
        CRow& operator=(const CRow&) = delete;
        ~CRow() = default;

        CTableLayoutCell& GetTable() const { return table; }

        /// Share of the table's height within its margins; negative for none. A fixed height wins over it.
        float GetHeightRatio() const { return heightRatio; }

        /// In pixels; negative for none.
        std::int32_t GetFixedHeight() const { return fixedHeight; }

        /// The cells of the row, hidden ones included.
        std::int32_t GetColumnCount() const { return columnCount; }

    private:
        friend class CTableLayoutCell;

        /// The cells, which lead back to the row.
        struct CItems : CLayoutItems
        {
            CItems(CTableLayoutCell& table_, CRow& row_)
                : CLayoutItems(table_, table_.updateCommand),
                  row(row_)
            {
            }
            CRow& row;
        };

        bool HasFixedHeight() const { return fixedHeight >= 0; }
        bool HasRatio() const { return heightRatio >= 0.0F && !HasFixedHeight(); }

        CItems items;
        float heightRatio;
        std::int32_t fixedHeight;
        std::int32_t columnCount = 0;
        bool removed = false; ///< The row stands in the list only until the walks over it are done.
        CTableLayoutCell& table;
        std::list<CRow>::iterator place; ///< In the table.
    };

    /// Spacings and margins in pixels.
    explicit CTableLayoutCell(std::int32_t hSpacing_ = 0, std::int32_t vSpacing_ = 0,
                              std::int32_t hMargin_ = 0, std::int32_t vMargin_ = 0);
    ~CTableLayoutCell() override;

    virtual void SetHSpacing(std::int32_t newSpacing);
    std::int32_t GetHSpacing() const { return hSpacing; }
    virtual void SetVSpacing(std::int32_t newSpacing);
    std::int32_t GetVSpacing() const { return vSpacing; }

    std::int32_t GetColumnCount() const;
    std::int32_t GetRowCount() const { return rowCount; }

    /// Inserts a row behind the current one, and makes it current: cells are added to it. Null if a listener
    /// removed it at once.
    virtual CRow* AddRow(float heightRatio, std::int32_t fixedHeight);

    /// The row that cells are added to, at its head, and that the next row comes behind; null for the next
    /// row to come first. A row of another table is ignored.
    void SetCurrentRow(CRow* row);

    /// Destroys the row and, with destroy, the cells in it that are owned; cells are the caller's otherwise.
    /// The last row becomes current. A row of another table is left alone.
    virtual void RemoveRow(CRow* row, bool destroy);

    void ComputeNaturalSize(bool recurse) override;
    CLayoutOptions* AddCell(CLayoutCell* cell, const CLayoutOptions& options, bool owned) override;

    /// The insertion point moves to the end of the current row.
    void RemoveCell(CLayoutCell* cell, bool destroy) override;

    /// Makes the cell's row current too; null for the head of the first row.
    void SetInsertionPoint(const CLayoutCell* cell) override;
    CLayoutCell* GetCurrentCell() const override;

    /// Removes all rows. Does not lay out what is left, but marks the table for it.
    void Clear() override;
    void Arrange(const Core::CPoint& point) override;

protected:
    void PurgeRemoved() override;
    void SetChildrenAutoUpdate(bool newAutoUpdate) override;

private:
    using CRows = std::list<CRow>;

    struct CExtents
    {
        std::vector<std::int32_t> columnWidths; ///< By column.
        std::vector<std::int32_t> rowHeights;   ///< By row.
    };

    template <class Call>
    void ForEachRow(const Call& call);
    template <class SizeOf>
    void FindExtents(const SizeOf& sizeOf, bool recurse);
    Core::CSize NaturalSizeOfExtents() const;

    void RemoveMarked(CRow& row, bool destroy);
    void ForgetColumns(const CRow& row);
    void MoveInsertionPointToEnd();
    CRow* FindRow(const CLayoutCell* cell) const;
    void FindTargets();
    bool FindRowTargets(CRow& row, std::int32_t rowHeight);
    bool GiveTargets(unsigned pass);
    void Place(const Core::CPoint& point, unsigned pass);
    bool PlaceRow(const CRow& row, std::int64_t left, std::int64_t top, std::int32_t rowHeight,
                  unsigned pass);
    CRow* GetFirstRow();
    CRow* GetLastRow();

    std::int32_t hSpacing;
    std::int32_t vSpacing;
    mutable std::int32_t columnCount = 0; ///< Negative if it has to be found anew.
    std::int32_t rowCount = 0;
    CExtents extents;
    CExtents measured; ///< The extents before an arrange pass changed sizes of children.
    Core::CSize measuredSize;
    CRows rows;
    CRow* currentRow = nullptr;
    std::vector<CRow*> rowsToPurge; ///< Cells of them were removed. A row may stand here more than once.
    std::vector<CRow*> removedRows;
};

} // namespace Mirel::Layout
