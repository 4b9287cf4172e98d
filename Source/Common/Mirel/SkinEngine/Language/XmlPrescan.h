#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Mirel::SkinEngine
{

/// What a file holds that the XML library must not see; an empty reason if there is nothing.
struct CPrescanResult
{
    std::string reason;
    std::size_t line = 0;
};

/// Looks for what costs the library more than the file's size: deep nesting, long names, attributes and
/// document types, too many attributes, and encodings that hide the markup from this scan. Takes linear time
/// and no stack, and stops without a reason where the file is not well-formed, since the library reports
/// that, and reads no further either.
CPrescanResult PrescanXml(std::string_view file);

} // namespace Mirel::SkinEngine
