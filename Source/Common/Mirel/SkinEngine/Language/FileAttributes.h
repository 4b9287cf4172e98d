#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// The name pieces of a file-valued attribute: {"image", "_hover"}.
using CNamePieces = std::vector<std::string>;

/// How a lookup reaches the files; each may refuse with nothing or false.
struct CFileAccess
{
    /// The path that an attribute's value means, or nothing if skins may not name it.
    std::function<std::optional<std::string>(const char* value)> resolve;

    /// Whether a path made from a resolved one is a file that skins may name.
    std::function<bool(const std::string& path)> exists;
};

/// The path in the attribute whose name is all pieces together, with no look at the file.
std::optional<std::string> FindWholeAttribute(const Containers::CNamedAttributes& attributes,
                                              const CNamePieces& pieces, const CFileAccess& files);

/// From all pieces down to the first alone: the path in the attribute of those pieces, with the others
/// inserted before its last ".". The first that is a file.
std::optional<std::string> FindShortenedAttribute(const Containers::CNamedAttributes& attributes,
                                                  const CNamePieces& pieces, const CFileAccess& files);

/// All pieces together, else the shortened forms.
std::optional<std::string> FindFileAttribute(const Containers::CNamedAttributes& attributes,
                                             const CNamePieces& pieces, const CFileAccess& files);

/// All pieces of both lists together, else the shortened forms of every beginning of base followed by every
/// beginning of suffix, the longest first. One piece of each stays: a mask does not fall back to its image.
std::optional<std::string> FindFileAttribute(const Containers::CNamedAttributes& attributes,
                                             const CNamePieces& base, const CNamePieces& suffix,
                                             const CFileAccess& files);

/// The attribute base + suffix, else the attribute base with the suffix inserted before its last ".", with no
/// look at the file.
std::optional<std::string> FindSimpleFileAttribute(const Containers::CNamedAttributes& attributes,
                                                   const std::string& base, const std::string& suffix,
                                                   const CFileAccess& files);

} // namespace Mirel::SkinEngine
