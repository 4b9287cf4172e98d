#pragma once

#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Model/CSkinModelCollectionItem.h"
#include "Mirel/SkinEngine/Model/CSkinModelContext.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItemFactory.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// Makes the items of a collection in a model file: each replays the recorded body through a parser and a
/// factory of its own. What goes wrong inside an item is not reported. GUI thread only.
class CSkinModelCollectionItemFactory : public ISkinCollectionItemFactory
{
public:
    /// The parser is the one of the collection's file, and is not kept. The parent is the model around all
    /// items; it must outlive the factory.
    CSkinModelCollectionItemFactory(std::unique_ptr<IParsedTemplate> body_, const CSkinParser& parser,
                                    ISkinModel& parent_, std::shared_ptr<CSkinModelContext> context_);

    int GetCount() const override { return static_cast<int>(items.size()); }
    void Prepare(int) override {}
    void CreateItem(int index, const Containers::CNamedAttributes& attributes) override;
    void DestroyItem(int index) override;
    ISkinCollectionItem* GetItem(int index) const override;
    void Commit(int delta) override;

private:
    void Fill(CSkinModelCollectionItem& item, const Containers::CNamedAttributes& attributes);

    std::unique_ptr<IParsedTemplate> body;
    Serialization::CMemDataObject parserState;
    std::string dataFolder;
    ISkinModel& parent;
    std::shared_ptr<CSkinModelContext> context;
    std::vector<std::unique_ptr<CSkinModelCollectionItem>> items;
};

/// The elements of a recorded body, at any depth.
int CountElements(const IParsedTemplate& body);

} // namespace Mirel::SkinEngine
