#pragma once

#include <cstddef>
#include <cstdint>

namespace Mirel::Serialization
{

/// Bytes as text: the standard alphabet of RFC 4648, padded with "=", without line breaks. The text is made
/// with array-new, which the caller frees, and ends in a zero.
char* EncodeBase64(const void* data, std::uint32_t size);

/// The bytes of a text, made with array-new, which the caller frees, and their number. The empty text gives
/// an empty allocation. Null with a size of 0 for a null text or a length that is no multiple of 4.
///
/// Characters outside the alphabet are not refused: each counts as "A", six zero bits. Only the last two
/// characters can be padding, and only together or the last alone; a "=" elsewhere is such a character.
char* DecodeBase64(const char* text, std::uint32_t& size);

/// Length of the encoded text without its final zero.
constexpr std::size_t EncodedBase64Length(std::size_t size)
{
    return (size + 2) / 3 * 4;
}

} // namespace Mirel::Serialization
