#pragma once

#include <string_view>

namespace Mirel::SkinEngine
{

/// Whether the text matches the pattern, in which each "*" stands for any run of characters, also an empty
/// one, and every other character for itself. Takes at most the product of both lengths, and no memory.
bool MatchesPattern(std::string_view text, std::string_view pattern);

} // namespace Mirel::SkinEngine
