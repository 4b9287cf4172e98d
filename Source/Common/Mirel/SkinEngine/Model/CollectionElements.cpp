#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"
#include "Mirel/SkinEngine/Model/CollectionObjects.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <limits>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

namespace
{

/// Hands the collection to the model: it lives as long as that, and lets its items go in time.
template <class T>
T& OwnCollection(CElementBuild& build, std::unique_ptr<T> collection)
{
    T& owned = build.Own(std::move(collection));
    const auto close = [&owned] { owned.SetItemFactory(nullptr); };
    build.GetModel().AddConnection(new TModelConnection<decltype(close)>(close));
    build.openCollection = &owned;
    return owned;
}

} // namespace

bool BuildCollectionStart(CElementBuild& build, const CNamedAttributes& attributes)
{
    build.GetParser().StartRecording(nullptr);
    build.openCollection = nullptr;
    const char* id = FindText(attributes, "id");
    if (id == nullptr)
    {
        return build.Fail("Cannot create collection, id field is empty.");
    }
    int count = 0;
    int minCount = 0;
    int maxCount = std::numeric_limits<int>::max();
    ReadNumber(attributes, "count", count);
    ReadNumber(attributes, "min_count", minCount);
    ReadNumber(attributes, "max_count", maxCount);
    auto& collection = OwnCollection(
        build, std::make_unique<CSkinCollection>(build.GetContext()->GetCollections(), id,
                                                 FindText(attributes, "item_name"), minCount, maxCount));
    const bool added = AddCollection(build.GetModel(), build.GetExposure(), collection, count);
    if (*id != '\0')
    {
        build.Note(id, attributes);
    }
    build.QueueCount(std::make_unique<CCountCommand>(collection, count));
    return added;
}

bool BuildForEachStart(CElementBuild& build, const CNamedAttributes& attributes)
{
    using T = CForEachSkinCollection;
    build.GetParser().StartRecording(nullptr);
    build.openCollection = nullptr;
    const auto sources = SplitIdentifiers(GetText(attributes, "collection_id"));
    if (sources.empty())
    {
        return build.Fail("Cannot create \"foreach\" collection, collection_id field is empty.");
    }
    auto& collection = OwnCollection(build, std::make_unique<T>(build.GetContext()->GetCollections(),
                                                                GetText(attributes, "id"),
                                                                FindText(attributes, "item_name")));
    const bool added = AddFollower(build.GetModel(), build.GetExposure(), collection);
    for (const std::string& source : sources)
    {
        build.QueuePreLink(std::make_unique<TConnectByRefWithIdCommand<T, IConstCollection>>(
            build.GetModel(), build.GetContext(), collection, &T::Connect, &T::Disconnect, source.c_str(),
            false));
    }
    return added;
}

CSkinCollectionBase* CloseCollection(CElementBuild& build, std::unique_ptr<IParsedTemplate>& body)
{
    void* noContext = nullptr;
    body.reset(build.GetParser().StopRecording(noContext));
    CSkinCollectionBase* const collection = std::exchange(build.openCollection, nullptr);
    return body == nullptr ? nullptr : collection;
}

bool BuildCollectionEnd(CModelBuild& build)
{
    std::unique_ptr<IParsedTemplate> body;
    CSkinCollectionBase* const collection = CloseCollection(build, body);
    if (collection == nullptr)
    {
        return true;
    }
    // A body inside an item is kept for each item.
    if (build.GetParent() != nullptr && !build.TakeElements(CountElements(*body)))
    {
        return false;
    }
    collection->SetItemFactory(std::make_unique<CSkinModelCollectionItemFactory>(
        std::move(body), build.GetParser(), build.GetWholeModel(), build.GetContext()));
    return true;
}

} // namespace Mirel::SkinEngine
