#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"
#include "Mirel/SkinEngine/Model/CollectionObjects.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"
#include "Mirel/SkinEngine/UI/CSkinUICollectionItemFactory.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <limits>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

namespace
{

/// Hands the collection to the skin: it lives as long as that, and lets its items go in time.
template <class T>
T& OwnCollection(CUIBuild& build, std::unique_ptr<T> collection)
{
    T& owned = *collection;
    CSkinModel& model = build.GetData().GetModel();
    model.AddOwned(new Core::TDestroyAdapter<std::unique_ptr<T>>(std::move(collection)));
    const auto close = [&owned] { owned.SetItemFactory(nullptr); };
    model.AddConnection(new TModelConnection<decltype(close)>(close));
    build.openCollection = &owned;
    return owned;
}

} // namespace

bool BuildUICollectionStart(CUIBuild& build, const CNamedAttributes& attributes)
{
    build.GetParser().StartRecording(nullptr);
    build.openCollection = nullptr;
    const char* id = FindText(attributes, "id");
    if (id == nullptr)
    {
        build.Fail("Cannot create collection, id field is empty.");
        return false;
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
    const bool added = AddCollection(build.GetData().GetModel(), build.GetExposure(), collection, count);
    if (*id != '\0')
    {
        build.Note(id, attributes);
    }
    build.QueueCount(std::make_unique<CCountCommand>(collection, count));
    return build.GetData().TakeAllAdded() && added;
}

bool BuildUIForEachStart(CUIBuild& build, const CNamedAttributes& attributes)
{
    using T = CForEachSkinCollection;
    build.GetParser().StartRecording(nullptr);
    build.openCollection = nullptr;
    const auto sources = SplitIdentifiers(GetText(attributes, "collection_id"));
    if (sources.empty())
    {
        build.Fail("Cannot create \"foreach\" collection, collection_id field is empty.");
        return false;
    }
    auto& collection = OwnCollection(build, std::make_unique<T>(build.GetContext()->GetCollections(),
                                                                GetText(attributes, "id"),
                                                                FindText(attributes, "item_name")));
    const bool added = AddFollower(build.GetData().GetModel(), build.GetExposure(), collection);
    for (const std::string& source : sources)
    {
        build.QueuePreLink(std::make_unique<TConnectByRefWithIdCommand<T, IConstCollection>>(
            build.GetData().GetModel(), build.GetContext(), collection, &T::Connect, &T::Disconnect,
            source.c_str(), false));
    }
    return build.GetData().TakeAllAdded() && added;
}

bool BuildUICollectionEnd(CUIBuild& build)
{
    void* noContext = nullptr;
    std::unique_ptr<IParsedTemplate> body(build.GetParser().StopRecording(noContext));
    CSkinCollectionBase* const collection = std::exchange(build.openCollection, nullptr);
    if (body == nullptr || collection == nullptr)
    {
        return true;
    }
    // A body inside an item is kept for each item.
    if (build.GetRoot() == nullptr && !build.TakeElements(CountElements(*body)))
    {
        return false;
    }
    collection->SetItemFactory(std::make_unique<CSkinUICollectionItemFactory>(
        std::move(body), build.GetParser(), build.GetData().GetWholeModel(), build.GetServices(),
        CSkinUICollectionItemFactory::SPlace{build.GetScope(),
                                             build.GetData().GetPieces().AddCollection(*collection)},
        build.GetContext()));
    return true;
}

} // namespace Mirel::SkinEngine
