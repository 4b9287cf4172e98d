#pragma once

#include <string>
#include <string_view>

namespace Mirel::Serialization
{

/// The key of a list's item: the name, then the index in plain decimal ("value12").
inline std::string IndexedKey(std::string_view name, int index)
{
    return std::string(name) + std::to_string(index);
}

} // namespace Mirel::Serialization
