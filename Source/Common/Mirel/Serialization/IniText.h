#pragma once

#include <string_view>

namespace Mirel::Serialization
{

/// Whether a key names an entry that the library finds again: it is not empty, has no blanks at its ends, no
/// line break and no "=", and does not begin like a comment or a section.
bool IsIniKey(std::string_view key);

/// Whether the text names a section, or a part of a section's path: not empty, no blanks at its ends, no line
/// break and no "]".
bool IsIniSection(std::string_view section);

/// Whether the library reads the value back as it was written. A value with line breaks or outer blanks is
/// written as lines up to one that says "END_OF_TEXT", so no line of it may say that, in any case and with
/// any blanks after it. One without must not begin with "<<<", which announces such lines. A carriage return
/// is read as a line feed, so there may be none.
bool IsIniValue(std::string_view value);

} // namespace Mirel::Serialization
