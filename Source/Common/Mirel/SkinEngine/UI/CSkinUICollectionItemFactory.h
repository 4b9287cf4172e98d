#pragma once

#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Model/CSkinModelContext.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItemFactory.h"
#include "Mirel/SkinEngine/UI/CSkinUICollectionItem.h"
#include "Mirel/SkinEngine/UI/SSkinUIServices.h"
#include "Mirel/SkinEngine/UI/SUIScope.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

class CSkinParser;

/// Makes the items of a collection in a skin: each replays the recorded body through a parser and a handler
/// of its own, into the group that the collection stands in. GUI thread only.
class CSkinUICollectionItemFactory : public ISkinCollectionItemFactory
{
public:
    /// Where the items stand: in what, and behind what.
    struct SPlace
    {
        SUIScope scope;
        CSkinPieces::SCollectionPlace order;
    };

    /// The parser is the one of the collection's file, and is not kept. What the place speaks of must outlive
    /// the factory, and so must the model around the skin.
    CSkinUICollectionItemFactory(std::unique_ptr<IParsedTemplate> body_, const CSkinParser& parser,
                                 ISkinModel& whole_, const SSkinUIServices& services_, SPlace place_,
                                 std::shared_ptr<CSkinModelContext> context_);

    int GetCount() const override { return static_cast<int>(items.size()); }

    void Prepare(int delta) override;
    void CreateItem(int index, const Containers::CNamedAttributes& attributes) override;
    void DestroyItem(int index) override;
    ISkinCollectionItem* GetItem(int index) const override;
    void Commit(int delta) override;

private:
    void Fill(CSkinUICollectionItem& item, const Containers::CNamedAttributes& attributes);
    void SetInsertionPoints(const CSkinPieces& item) const;
    void SetRow(const CSkinPieces& item) const;
    void SetCell(const CSkinPieces& item) const;
    void SetWidget(const CSkinPieces& item) const;

    std::unique_ptr<IParsedTemplate> body;
    Serialization::CMemDataObject parserState;
    std::string dataFolder;
    ISkinModel& whole;
    SSkinUIServices services;
    SPlace place;
    std::shared_ptr<CSkinModelContext> context;
    CLayoutPause pause; ///< The group is laid out once for all items that come or go.
    std::vector<std::unique_ptr<CSkinUICollectionItem>> items;
};

} // namespace Mirel::SkinEngine
