#include "Mirel/SkinEngine/Model/StateTransfer.h"

#include "Mirel/SkinEngine/Model/Limits.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"

#include <memory>
#include <string_view>
#include <vector>

namespace Mirel::SkinEngine
{

namespace
{

using namespace DataModel::Objects;

constexpr std::string_view CountSuffix = ".count";

/// Calls take(id, const I&) for each object that is an I.
template <class I, class Take>
void ForEachOf(const ISkinDynamicObjectsDictionary& objects, Take take)
{
    const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(objects.CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        if (const I* object = FindInterface<I>(entry->GetObject()))
        {
            take(entry->GetId(), *object);
        }
    }
}

template <class I, class Item>
void RestoreEach(ISkinDynamicObjectsDictionary& objects, const std::vector<Item>& items)
{
    for (const Item& item : items)
    {
        if (I* object = FindObject<I>(objects, item.name.c_str()))
        {
            object->SetValue(item.value);
        }
    }
}

/// The same for functions, of which a missing one is the object's default.
template <class I, class Item>
void RestoreEachFunction(ISkinDynamicObjectsDictionary& objects, const std::vector<Item>& items)
{
    for (const Item& item : items)
    {
        if (I* object = FindObject<I>(objects, item.name.c_str()))
        {
            object->SetValue(item.value == nullptr ? object->GetInfo().GetDefaultFunction() : *item.value);
        }
    }
}

bool RestoreCount(ISkinDynamicObjectsDictionary& objects, const CSkinModelState::CCollection& item)
{
    if (!item.name.ends_with(CountSuffix))
    {
        return false;
    }
    const std::string id = item.name.substr(0, item.name.size() - CountSuffix.size());
    ICount* collection = FindObject<ICount>(objects, id.c_str());
    if (collection == nullptr)
    {
        return false;
    }
    collection->SetCount(item.value);
    return true;
}

/// A collection inside an item of another is there only when the count of that one is set: what was not found
/// is tried again for as long as others are.
void RestoreCounts(ISkinDynamicObjectsDictionary& objects,
                   const std::vector<CSkinModelState::CCollection>& items)
{
    std::vector<const CSkinModelState::CCollection*> pending;
    for (const auto& item : items)
    {
        if (!RestoreCount(objects, item))
        {
            pending.push_back(&item);
        }
    }
    std::size_t before = items.size();
    for (int level = 0; level < maxCollectionLevels && !pending.empty() && pending.size() < before; ++level)
    {
        before = pending.size();
        std::erase_if(pending, [&objects](const auto* item) { return RestoreCount(objects, *item); });
    }
}

} // namespace

void TakeValues(const ISkinDynamicObjectsDictionary& objects, CSkinModelState& state)
{
    state.Clear();
    ForEachOf<ICount>(objects,
                      [&state](const char* id, const ICount& collection) {
                          state.collections.push_back({id + std::string(CountSuffix), collection.GetCount()});
                      });
    ForEachOf<ICaptureParam>(objects,
                             [&state](const char* id, const ICaptureParam& param) {
                                 state.params.push_back({id, param.GetValue()});
                             });
    ForEachOf<ICaptureCurve>(
        objects,
        [&state](const char* id, const ICaptureCurve& curve) {
            state.curves.push_back({id, std::unique_ptr<const Math::IFunction>(curve.GetValue().Clone())});
        });
    ForEachOf<ICaptureSurface>(objects,
                               [&state](const char* id, const ICaptureSurface& surface)
                               {
                                   state.surfaces.push_back({id, std::unique_ptr<const Math::IBinaryFunction>(
                                                                     surface.GetValue().Clone())});
                               });
    ForEachOf<ICaptureString>(objects,
                              [&state](const char* id, const ICaptureString& string)
                              {
                                  const char* text = string.GetValue();
                                  state.strings.push_back({id, text == nullptr ? "" : text});
                              });
}

void RestoreValues(ISkinDynamicObjectsDictionary& objects, const CSkinModelState& state)
{
    RestoreCounts(objects, state.collections);
    RestoreEach<ICaptureParam>(objects, state.params);
    RestoreEachFunction<ICaptureCurve>(objects, state.curves);
    RestoreEachFunction<ICaptureSurface>(objects, state.surfaces);
    for (const auto& item : state.strings)
    {
        if (auto* string = FindObject<ICaptureString>(objects, item.name.c_str()))
        {
            string->SetValue(item.value.c_str());
        }
    }
}

} // namespace Mirel::SkinEngine
