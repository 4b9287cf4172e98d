#pragma once

#include <string>
#include <string_view>

namespace Mirel::Serialization
{

/// The key of a list's item: the name, then the index in plain decimal ("value12").
std::string IndexedKey(std::string_view name, int index);

} // namespace Mirel::Serialization
