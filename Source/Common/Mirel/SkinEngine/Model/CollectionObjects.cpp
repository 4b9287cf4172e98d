#include "Mirel/SkinEngine/Model/CollectionObjects.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Runtime/CDynamicObject.h"

#include <limits>
#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

namespace
{

/// 2147483647 as the nearest float.
constexpr float largestCount = 2147483648.0F;

/// Enters a collection under its id, if it has one.
bool AddObject(ISkinModel& model, IConstCollection& collection, ICount* writable)
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
    return model.AddObject(collection.GetId(), object.release(), true);
}

std::string CountName(const IConstCollection& collection)
{
    return std::string(collection.GetId()) + ".count";
}

/// What nobody wants, or has no name, has no flags.
int CountFlags(const ISkinModelExposure& exposure, const IConstCollection& collection)
{
    return *collection.GetId() == '\0' ? 0 : exposure.GetParamFlags(CountName(collection).c_str());
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

bool AddCount(ISkinModel& model, const ISkinModelExposure& exposure, CSkinCollection& collection, int count)
{
    const int flags = CountFlags(exposure, collection);
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, static_cast<float>(collection.GetMinCount()),
                          static_cast<float>(collection.GetMaxCount()), static_cast<float>(count), "Count",
                          "", "");
    return model.AddParam(CountName(collection).c_str(),
                          new CCaptureParamWrapper(
                              // A link of an item may ask for the very count that is being left.
                              info, [&collection] { return static_cast<float>(collection.GetAskedCount()); },
                              [&collection](float value) { collection.SetCount(CountFrom(value)); },
                              &collection.GetCountChangedEventProvider()),
                          flags, true);
}

bool AddCount(ISkinModel& model, const ISkinModelExposure& exposure, const CForEachSkinCollection& collection)
{
    const int flags = CountFlags(exposure, collection);
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(ValueKindInteger, 0.0F, largestCount, CountOf(collection), "Count", "", "");
    return model.AddConstParam(
        CountName(collection).c_str(),
        new CConstCaptureParamWrapper(
            info, [&collection] { return CountOf(collection); }, &collection.GetCountChangedEventProvider()),
        flags, true);
}

} // namespace

bool AddCollection(ISkinModel& model, const ISkinModelExposure& exposure, CSkinCollection& collection,
                   int count)
{
    const bool added = AddObject(model, collection, &collection);
    return AddCount(model, exposure, collection, collection.ClampCount(count)) && added;
}

bool AddFollower(ISkinModel& model, const ISkinModelExposure& exposure, CForEachSkinCollection& collection)
{
    const bool added = AddObject(model, collection, nullptr);
    return AddCount(model, exposure, collection) && added;
}

} // namespace Mirel::SkinEngine
