#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace Mirel::DataModel::Objects
{

/// Appends what a placeholder, given with its braces, stands for.
using PlaceholderExpansion = std::function<void(std::string_view placeholder, std::string& result)>;

/// Copies a pattern and puts the expansion in place of every text in braces. A brace that never closes is
/// copied as it stands. A doubled opening brace gives one brace, after which the text since the last
/// placeholder comes once more, the two braces included: "a{{b" gives "a{a{{b".
///
/// The result ends at maxExpandedText bytes, or at the character before.
std::string ExpandPattern(std::string_view pattern, const PlaceholderExpansion& expand);

/// The bytes of a UTF-8 text that are left when it is shortened to a size in bytes, or to the character
/// before. Any thread.
std::size_t LengthInWholeCharacters(std::string_view text, std::size_t size);

/// Shortens a UTF-8 text to a size in bytes, or to the character before.
void CutToWholeCharacters(std::string& text, std::size_t size);

} // namespace Mirel::DataModel::Objects
