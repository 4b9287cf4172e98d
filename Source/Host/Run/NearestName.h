#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Host
{

/// The name that takes the fewest insertions, removals and exchanges of letters to become `name`, capitals
/// and small letters being the same; the first of several. Empty without names.
std::string FindNearestName(std::string_view name, const std::vector<std::string>& names);

/// Whether two texts are the same but for capitals of the ASCII letters.
bool IsSameName(std::string_view left, std::string_view right);

} // namespace Host
