#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace MirelExt::AAXPlugin
{

/// Shortens a UTF-8 text to at most `limit` characters (code points; a byte that belongs to none counts as
/// one). A text that fits comes back as it stands. Otherwise the blanks at both ends go, then the last word
/// with the blanks before it, over and over, until the rest fits; if the one word left is too long, it is
/// cut. No word is abbreviated.
std::string ShortenName(std::string_view name, std::size_t limit);

} // namespace MirelExt::AAXPlugin
