#pragma once

#include <string>
#include <string_view>

namespace SkinCheck
{

/// A text as a JSON string, with its quotes. What is not UTF-8 becomes a question mark.
std::string ToJson(std::string_view text);

} // namespace SkinCheck
