#include "Host/CRecordingPropertyMap.h"

#include <algorithm>

namespace Host
{

std::int32_t CRecordingPropertyMap::SetProperty(std::uint32_t number, std::uint32_t value)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&](const CProperty& property) { return property.number == number; });
    if (found != properties.end())
    {
        found->value = value;
    }
    else
    {
        properties.push_back({number, value});
    }
    return AAXResult::Ok;
}

std::optional<std::uint32_t> CRecordingPropertyMap::Find(std::uint32_t number) const
{
    for (const CProperty& property : properties)
    {
        if (property.number == number)
        {
            return property.value;
        }
    }
    return std::nullopt;
}

} // namespace Host
