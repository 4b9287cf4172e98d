#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXPropertyMap.h"
#include "Host/Declarations.h"

#include <optional>

namespace Host
{

/// Keeps the properties in the order in which each was first set.
class CRecordingPropertyMap : public TACFObject<IAAXPropertyMap>
{
public:
    std::int32_t SetProperty(std::uint32_t number, std::uint32_t value) override;

    const std::vector<CProperty>& GetProperties() const { return properties; }
    std::optional<std::uint32_t> Find(std::uint32_t number) const;

private:
    std::vector<CProperty> properties;
};

} // namespace Host
