#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/Layout/CTableLayoutCell.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"

#include <cstddef>
#include <functional>
#include <utility>
#include <variant>
#include <vector>

namespace Mirel::SkinEngine
{

/// What stands directly in a skin, or in one item of a collection, in the order of the file, collections
/// among it. With their items it is the whole skin in order: so it is found where the widgets of an item have
/// to stand, which is where they would if the file had them in place of the collection. Nothing is owned. GUI
/// thread only.
class CSkinPieces
{
public:
    using CPiece = std::variant<Layout::CLayoutCell*, Layout::CTableLayoutCell::CRow*, GUI::CLightWidget*,
                                GUI::CWidget*, CSkinCollectionBase*>;
    using CList = std::vector<CPiece>;
    using CMatch = std::function<bool(const CPiece&)>;

    /// A collection among pieces.
    struct SCollectionPlace
    {
        const CSkinPieces* around = nullptr; ///< Must outlive the items.
        std::size_t piece = 0;
    };

    void Add(CPiece piece) { pieces.push_back(piece); }

    /// The items must be CSkinUICollectionItem.
    SCollectionPlace AddCollection(CSkinCollectionBase& collection)
    {
        pieces.emplace_back(&collection);
        return {this, pieces.size() - 1};
    }

    /// For an item, before it gets pieces: the items before it must have theirs.
    void SetPlace(const SCollectionPlace& newPlace, int index);

    /// The last piece in front of these, of items and of what is around, that matches; null for none.
    const CPiece* FindBefore(const CMatch& match) const;

    const CList& GetList() const { return pieces; }

    /// Leaves none.
    CList Take() { return std::exchange(pieces, {}); }

private:
    static const CPiece* FindInItems(const CSkinCollectionBase& collection, int count, const CMatch& match);
    const CPiece* FindLast(std::size_t end, const CMatch& match) const;
    const CSkinCollectionBase& GetCollection() const;

    CList pieces;
    SCollectionPlace place;
    int itemsBefore = 0; ///< That have to be searched: the nearest ones may have no pieces at all.
};

} // namespace Mirel::SkinEngine
