#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace MirelExt::AAXPlugin
{

/// The names under which a host shows the product, longest first (at most 31, 16 and 8 characters), as one
/// text with a line feed between them. A short name gives the same line three times.
std::string MakeDisplayNames(std::string_view productName);

/// The texts between line feeds; always one at least.
std::vector<std::string> SplitLines(std::string_view text);

} // namespace MirelExt::AAXPlugin
