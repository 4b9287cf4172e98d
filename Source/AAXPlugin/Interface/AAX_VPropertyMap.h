#pragma once

#include "AAXPlugin/Interface/IAAXPropertyMap.h"
#include "AAXPlugin/Interface/TACFReference.h"

/// The plug-in's handle of a property map. Operations on one that holds nothing give Failed.
class AAX_VPropertyMap
{
public:
    explicit AAX_VPropertyMap(TACFReference<IAAXPropertyMap> map_);

    explicit operator bool() const { return static_cast<bool>(map); }
    IAAXPropertyMap* Get() const { return map.Get(); }

    std::int32_t SetProperty(std::uint32_t number, std::uint32_t value);

private:
    TACFReference<IAAXPropertyMap> map;
};
