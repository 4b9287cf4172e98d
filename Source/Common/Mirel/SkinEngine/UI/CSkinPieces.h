#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/Layout/CTableLayoutCell.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"

#include <array>
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

    /// The last piece in front of these that matches, in the items before and then in what is around all
    /// items; null for none. In items only one of the kind T can.
    template <class T>
    const CPiece* FindBefore(const CMatch& match) const
    {
        return FindBefore(CPiece(static_cast<T*>(nullptr)).index(), match);
    }

    const CList& GetList() const { return pieces; }

    /// Leaves none.
    CList Take() { return std::exchange(pieces, {}); }

private:
    using CKind = std::size_t; ///< Index of an alternative.

    static const CPiece* FindInItems(const CSkinCollectionBase& collection, int count, CKind kind,
                                     const CMatch& match);
    const CPiece* FindLast(std::size_t end, CKind kind, const CMatch& match) const;
    const CPiece* FindBefore(CKind kind, const CMatch& match) const;
    bool MayHave(CKind kind) const;
    const CSkinCollectionBase& GetCollection() const;

    CList pieces;
    SCollectionPlace place;
    /// By kind: how many of the items before have to be searched. The nearest may have none of that kind.
    std::array<int, std::variant_size_v<CPiece>> itemsBefore{};
};

} // namespace Mirel::SkinEngine
