#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <limits>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

/// 2147483647 as the nearest float.
constexpr float largestCount = 2147483648.0F;

/// Gives a collection its first count. At once, also where a change of counts is under way, as it is inside
/// an item: what the item links may be in these items.
class CCountCommand : public CModelCommand
{
public:
    CCountCommand(CSkinCollection& collection_, int count_) : collection(collection_), count(count_) {}

    bool Execute() override
    {
        collection.ApplyCount(collection.ClampCount(count));
        return true;
    }

private:
    CSkinCollection& collection;
    int count;
};

/// Hands the collection to the model: it lives as long as that, and lets its items go in time.
template <class T>
T& OwnCollection(CModelBuild& build, std::unique_ptr<T> collection)
{
    T& owned = build.Own(std::move(collection));
    const auto close = [&owned] { owned.SetItemFactory(nullptr); };
    build.GetModel().AddConnection(new TModelConnection<decltype(close)>(close));
    build.openCollection = &owned;
    return owned;
}

/// Enters a collection under its id, if it has one.
bool AddObject(CModelBuild& build, IConstCollection& collection, ICount* writable)
{
    if (*collection.GetId() == '\0')
    {
        return true;
    }
    auto object = std::make_unique<Runtime::CDynamicObject>();
    object->AddInterface<IConstCollection>(TObjectInterface<IConstCollection>::name, &collection, false);
    object->AddInterface<IConstCount>(TObjectInterface<IConstCount>::name, &collection, false);
    if (writable != nullptr)
    {
        object->AddInterface<ICount>(TObjectInterface<ICount>::name, writable, false);
    }
    return build.GetModel().AddObject(collection.GetId(), object.release(), true);
}

std::string CountName(const IConstCollection& collection)
{
    return std::string(collection.GetId()) + ".count";
}

/// What nobody wants, or has no name, has no flags.
int CountFlags(const CModelBuild& build, const IConstCollection& collection)
{
    return *collection.GetId() == '\0' ? 0 : build.GetExposure().GetParamFlags(CountName(collection).c_str());
}

float CountOf(const IConstCount& collection)
{
    return static_cast<float>(collection.GetCount());
}

int CountFrom(float value)
{
    return value >= largestCount ? std::numeric_limits<int>::max()
                                 : Core::TruncateToInt32(static_cast<double>(value) + 0.5);
}

bool AddCount(CModelBuild& build, CSkinCollection& collection, int count)
{
    const int flags = CountFlags(build, collection);
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, static_cast<float>(collection.GetMinCount()),
                          static_cast<float>(collection.GetMaxCount()), static_cast<float>(count), "Count",
                          "", "");
    return build.GetModel().AddParam(CountName(collection).c_str(),
                                     new CCaptureParamWrapper(
                                         info, [&collection] { return CountOf(collection); },
                                         [&collection](float value)
                                         { collection.SetCount(CountFrom(value)); },
                                         &collection.GetCountChangedEventProvider()),
                                     flags, true);
}

bool AddCount(CModelBuild& build, const CForEachSkinCollection& collection)
{
    const int flags = CountFlags(build, collection);
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, 0.0F, largestCount, CountOf(collection), "Count", "", "");
    return build.GetModel().AddConstParam(
        CountName(collection).c_str(),
        new CConstCaptureParamWrapper(
            info, [&collection] { return CountOf(collection); }, &collection.GetCountChangedEventProvider()),
        flags, true);
}

} // namespace

bool BuildCollectionStart(CModelBuild& build, const CNamedAttributes& attributes)
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
    bool added = AddObject(build, collection, &collection);
    added = AddCount(build, collection, collection.ClampCount(count)) && added;
    if (*id != '\0')
    {
        build.Note(id, attributes);
    }
    build.QueueCount(std::make_unique<CCountCommand>(collection, count));
    return added;
}

bool BuildForEachStart(CModelBuild& build, const CNamedAttributes& attributes)
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
    bool added = AddObject(build, collection, nullptr);
    added = AddCount(build, collection) && added;
    for (const std::string& source : sources)
    {
        build.QueuePreLink(std::make_unique<TConnectByRefWithIdCommand<T, IConstCollection>>(
            build.GetModel(), build.GetContext(), collection, &T::Connect, &T::Disconnect, source.c_str(),
            false));
    }
    return added;
}

bool BuildCollectionEnd(CModelBuild& build)
{
    void* noContext = nullptr;
    std::unique_ptr<IParsedTemplate> body(build.GetParser().StopRecording(noContext));
    CSkinCollectionBase* const collection = std::exchange(build.openCollection, nullptr);
    if (body == nullptr || collection == nullptr)
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
