#pragma once

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"

#include <vector>

namespace Mirel::SkinEngine
{

/// A collection that follows others: it has as many items as the smallest of them, and each item is told the
/// names of theirs. GUI thread only.
class CForEachSkinCollection : public CSkinCollectionBase
{
public:
    /// A null item name gives the default one.
    CForEachSkinCollection(std::shared_ptr<CSkinCollectionContext> context_, const char* id_,
                           const char* itemName_);
    ~CForEachSkinCollection() override;

    /// The source is not owned; before it goes away it is disconnected. The identifier is the one that items
    /// know it by.
    void Connect(IConstCollection& source, const char* sourceId);
    void Disconnect(IConstCollection& source, const char* sourceId);

    void FillItemAttributes(Containers::CNamedAttributes& attributes, int index) const override;

private:
    struct CSource
    {
        std::string id;
        IConstCollection* collection;
    };

    bool IsSource(const IConstCollection& collection) const;
    void Listen(const IConstCollection& source, bool listen);
    void OnBeforeChange(int newCount) { UnloadItemsFrom(newCount); }
    void Recompute();

    std::vector<CSource> sources;
    Core::TArgCommand<CForEachSkinCollection, int> beforeChange{this,
                                                                &CForEachSkinCollection::OnBeforeChange};
    Core::TCommand<CForEachSkinCollection> changed{this, &CForEachSkinCollection::Recompute};
};

/// The parameter under which an item of a collection that follows others is told the name of a source's item.
std::string GetSourceItemName(const char* sourceId, const char* itemName);

} // namespace Mirel::SkinEngine
