#pragma once

#include <string>

namespace Mirel::SkinEngine
{

/// Makes the target the UTF-8 form of a zero-terminated UTF-16 text; null counts as empty, half a surrogate
/// pair becomes U+FFFD. The library's own conversion depends on how it was built, and costs as much as the
/// parsing of an attribute.
void AssignUtf8(const char16_t* text, std::string& target);

/// The same as a new string.
std::string ToUtf8(const char16_t* text);

} // namespace Mirel::SkinEngine
