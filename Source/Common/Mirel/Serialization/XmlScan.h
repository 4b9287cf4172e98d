#pragma once

#include <string_view>

namespace Mirel::Serialization
{

/// Whether the text may be given to the XML library: it is UTF-8 without zeros, within CLimits, and
/// well-formed as far as the library would otherwise repair it silently, read past its end or recurse without
/// bound. End tags match, there is exactly one root and nothing but comments and instructions beside it,
/// attributes are quoted, numeric character references name characters. Takes linear time and no stack.
///
/// Not refused, since the library reads them as a user means them: a bare "&", "<" inside an attribute, names
/// with any non-ASCII characters. A document type is accepted if it is only a name or an external identifier,
/// which nothing fetches.
bool IsReadableXml(std::string_view text);

/// Whether the text begins with U+FEFF, U+FFFE or U+FFFF, which the library skips like white space.
bool BeginsWithSkippedMark(std::string_view text);

/// Whether the text can name an element or attribute: an ASCII letter, "_" or a non-ASCII character that the
/// library does not skip, then also digits, ".", "-", ":".
bool IsXmlName(std::string_view text);

} // namespace Mirel::Serialization
