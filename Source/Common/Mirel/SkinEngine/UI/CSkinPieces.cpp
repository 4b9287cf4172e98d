#include "Mirel/SkinEngine/UI/CSkinPieces.h"

#include "Mirel/SkinEngine/UI/CSkinUICollectionItem.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

namespace
{

const CSkinPieces* GetItemPieces(const CSkinCollectionBase& collection, int index)
{
    const auto* item = static_cast<const CSkinUICollectionItem*>(collection.GetItem(index));
    return item == nullptr ? nullptr : &item->GetData().GetPieces();
}

} // namespace

void CSkinPieces::SetPlace(const SCollectionPlace& newPlace, int index)
{
    place = newPlace;
    const CSkinPieces* before = GetItemPieces(GetCollection(), index - 1);
    for (CKind kind = 0; kind < itemsBefore.size(); ++kind)
    {
        itemsBefore[kind] = before == nullptr || before->MayHave(kind) ? index : before->itemsBefore[kind];
    }
}

/// What the collections among them hold may change.
bool CSkinPieces::MayHave(CKind kind) const
{
    return std::any_of(pieces.begin(), pieces.end(),
                       [kind](const CPiece& piece) {
                           return piece.index() == kind ||
                                  std::holds_alternative<CSkinCollectionBase*>(piece);
                       });
}

const CSkinPieces::CPiece* CSkinPieces::FindBefore(CKind kind, const CMatch& match) const
{
    if (place.around == nullptr)
    {
        return nullptr;
    }
    const CPiece* found = FindInItems(GetCollection(), itemsBefore[kind], kind, match);
    found = found == nullptr ? place.around->FindLast(place.piece, kind, match) : found;
    return found == nullptr ? place.around->FindBefore(kind, match) : found;
}

/// In the first ones, as many as count.
const CSkinPieces::CPiece* CSkinPieces::FindInItems(const CSkinCollectionBase& collection, int count,
                                                    CKind kind, const CMatch& match)
{
    while (count > 0)
    {
        const CSkinPieces* item = GetItemPieces(collection, count - 1);
        const CPiece* found = item == nullptr ? nullptr : item->FindLast(item->pieces.size(), kind, match);
        if (found != nullptr)
        {
            return found;
        }
        count = item == nullptr ? count - 1 : item->itemsBefore[kind];
    }
    return nullptr;
}

/// In the pieces in front of that one.
const CSkinPieces::CPiece* CSkinPieces::FindLast(std::size_t end, CKind kind, const CMatch& match) const
{
    const CPiece* found = nullptr;
    while (found == nullptr && end > 0)
    {
        const CPiece& piece = pieces[--end];
        if (match(piece))
        {
            found = &piece;
        }
        else if (const auto* inner = std::get_if<CSkinCollectionBase*>(&piece))
        {
            found = FindInItems(**inner, (*inner)->GetItemCount(), kind, match);
        }
    }
    return found;
}

const CSkinCollectionBase& CSkinPieces::GetCollection() const
{
    return *std::get<CSkinCollectionBase*>(place.around->pieces[place.piece]);
}

} // namespace Mirel::SkinEngine
