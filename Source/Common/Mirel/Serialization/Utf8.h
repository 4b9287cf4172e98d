#pragma once

#include <string_view>

namespace Mirel::Serialization
{

/// Whether the bytes are well-formed UTF-8: no stray or missing continuation, no overlong form, no surrogate,
/// nothing above U+10FFFF.
bool IsUtf8(std::string_view text);

/// Whether the byte goes on with a character that an earlier byte began.
constexpr bool IsUtf8Continuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace Mirel::Serialization
