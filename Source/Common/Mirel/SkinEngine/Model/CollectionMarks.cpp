#include "Mirel/SkinEngine/Model/CollectionMarks.h"

#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"
#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include <memory>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

namespace
{

/// The body of a collection as it stands for all its items, so that what these refer to is marked.
CNamedAttributes ItemPatterns(const CNamedAttributes& collection)
{
    const char* itemName = GetText(collection, "item_name", CSkinCollectionBase::defaultItemName);
    CNamedAttributes patterns;
    patterns.Set(itemName, GetItemText(GetText(collection, "id"), -1).c_str());
    for (const std::string& source : SplitIdentifiers(GetText(collection, "collection_id")))
    {
        patterns.Set(GetSourceItemName(source.c_str(), itemName).c_str(),
                     GetItemText(source.c_str(), -1).c_str());
    }
    return patterns;
}

/// Ends a recording whose context is a set of attributes. Null if none was running.
std::unique_ptr<IParsedTemplate> StopMarkRecording(CSkinParser& parser,
                                                   std::unique_ptr<CNamedAttributes>& attributes)
{
    void* recorded = nullptr;
    std::unique_ptr<IParsedTemplate> body(parser.StopRecording(recorded));
    attributes.reset(static_cast<CNamedAttributes*>(recorded));
    return body;
}

} // namespace

void StartItemMarks(CSkinParser& parser, const CNamedAttributes& collection)
{
    parser.StartRecording(new CNamedAttributes(collection));
}

void EndItemMarks(CSkinParser& parser)
{
    std::unique_ptr<CNamedAttributes> attributes;
    const std::unique_ptr<IParsedTemplate> body = StopMarkRecording(parser, attributes);
    if (body != nullptr && attributes != nullptr)
    {
        delete body->Instantiate(ItemPatterns(*attributes), parser);
    }
}

void DropItemMarks(CSkinParser& parser)
{
    std::unique_ptr<CNamedAttributes> attributes;
    StopMarkRecording(parser, attributes);
}

} // namespace Mirel::SkinEngine
