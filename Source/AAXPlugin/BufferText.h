#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// Copies a UTF-8 text into a buffer of so many bytes, with a zero behind it, and leaves out what does not
/// fit, never a part of a character. False without a buffer or room for the zero.
bool CopyToBuffer(std::string_view text, char* buffer, std::int32_t capacity);

} // namespace MirelExt::AAXPlugin
