#include "AAXPlugin/Interface/AAX_VPropertyMap.h"

#include "AAXPlugin/Interface/AAXResults.h"

AAX_VPropertyMap::AAX_VPropertyMap(TACFReference<IAAXPropertyMap> map_) : map(std::move(map_)) {}

std::int32_t AAX_VPropertyMap::SetProperty(std::uint32_t number, std::uint32_t value)
{
    return map ? map->SetProperty(number, value) : AAXResult::Failed;
}
