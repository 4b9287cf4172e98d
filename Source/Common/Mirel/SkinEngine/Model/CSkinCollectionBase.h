#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/TArgEventProvider.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItemFactory.h"

#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

/// A collection of items that are made from one recorded body whenever the count rises, and go when it falls.
/// The same in a model file and in a skin: the item factory is the dialect's. GUI thread only.
class CSkinCollectionBase : public virtual IConstCollection
{
public:
    static constexpr const char* defaultItemName = "item_id";

    CSkinCollectionBase(const CSkinCollectionBase&) = delete;
    CSkinCollectionBase& operator=(const CSkinCollectionBase&) = delete;

    /// Unloads and destroys the items.
    ~CSkinCollectionBase() override;

    const char* GetId() const override { return id.c_str(); }

    /// The name of the parameter through which an item learns its own name, as "id[3]".
    const char* GetItemName() const { return itemName.c_str(); }

    int GetCount() const override { return count; }
    Core::IEventProvider& GetCountChangedEventProvider() const override { return changed; }
    Core::TIArgEventProvider<int>& GetBeforeCountChangeEventProvider() const override { return beforeChange; }

    /// Until there is one, the count stays what it is.
    void SetItemFactory(std::unique_ptr<ISkinCollectionItemFactory> newFactory);

    /// What a change under way comes to; else the count.
    int GetTargetCount() const { return targetCount; }

    /// The items that are there at this moment: not the count yet while that changes.
    int GetItemCount() const { return factory == nullptr ? 0 : factory->GetCount(); }

    /// No item is made any more: for a skin that goes.
    void StopGrowing() { growing = false; }

    /// Null where there is no such item.
    ISkinCollectionItem* GetItem(int index) const;

    /// In rising order; the items stay, empty.
    virtual void UnloadAllItems() { UnloadItemsFrom(0); }

    /// The parameters that an item of this index gets beside its own name.
    virtual void FillItemAttributes(Containers::CNamedAttributes& attributes, int index) const;

    /// Makes or destroys items up to the count, at once. The count that is reached is lower if a limit is
    /// met. For who sets a count of one's own accord there is CSkinCollection.
    void ApplyCount(int newCount);

protected:
    /// A null item name gives the default one.
    CSkinCollectionBase(std::shared_ptr<CSkinCollectionContext> context_, const char* id_,
                        const char* itemName_);

    CSkinCollectionContext& GetContext() const { return *context; }
    void UnloadItemsFrom(int first);

private:
    void Shrink(int newCount);
    void Grow(int newCount);
    void DestroyItems();

    std::shared_ptr<CSkinCollectionContext> context;
    std::string id;
    std::string itemName;
    std::unique_ptr<ISkinCollectionItemFactory> factory;
    int count = 0;
    int targetCount = 0;
    bool growing = true;
    bool changing = false; ///< Its own items are coming or going.
    Core::CLifeToken life;
    // Listening changes nothing of the collection.
    mutable Core::TArgEventProvider<int> beforeChange;
    mutable Core::CEventProvider changed;
};

/// The name of an item, as "id[3]". An index below 0 gives that of all items, "id[*]".
std::string GetItemText(const char* collectionId, int index);

} // namespace Mirel::SkinEngine
