#pragma once

#include <string_view>

namespace Mirel::Serialization
{

/// Whether the bytes are well-formed UTF-8: no stray or missing continuation, no overlong form, no surrogate,
/// nothing above U+10FFFF.
bool IsUtf8(std::string_view text);

} // namespace Mirel::Serialization
