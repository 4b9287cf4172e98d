#include "Mirel/SkinEngine/Language/FileAttributes.h"

#include <cstddef>

namespace Mirel::SkinEngine
{

namespace
{

using Containers::CNamedAttributes;

std::string Join(const CNamePieces& pieces, std::size_t first, std::size_t end)
{
    std::string joined;
    for (std::size_t i = first; i < end; ++i)
    {
        joined += pieces[i];
    }
    return joined;
}

bool Has(const CNamedAttributes& attributes, const CNamePieces& pieces)
{
    return attributes.Get(Join(pieces, 0, pieces.size()).c_str()) != nullptr;
}

/// A path without a "." in its last name gets the text at its end.
std::string InsertBeforeExtension(std::string path, const std::string& text)
{
    const std::size_t point = path.rfind('.');
    const std::size_t slash = path.rfind('/');
    const bool hasExtension = point != std::string::npos && (slash == std::string::npos || point > slash);
    return path.insert(hasExtension ? point : path.size(), text);
}

std::optional<std::string> FindPath(const CNamedAttributes& attributes, const std::string& name,
                                    const CFileAccess& files)
{
    const char* value = attributes.Get(name.c_str());
    return value == nullptr ? std::nullopt : files.resolve(value);
}

CNamePieces Beginning(const CNamePieces& pieces, std::size_t count)
{
    return {pieces.begin(), pieces.begin() + static_cast<std::ptrdiff_t>(count)};
}

} // namespace

std::optional<std::string> FindWholeAttribute(const CNamedAttributes& attributes, const CNamePieces& pieces,
                                              const CFileAccess& files)
{
    return FindPath(attributes, Join(pieces, 0, pieces.size()), files);
}

std::optional<std::string> FindShortenedAttribute(const CNamedAttributes& attributes,
                                                  const CNamePieces& pieces, const CFileAccess& files)
{
    for (std::size_t count = pieces.size(); count > 0; --count)
    {
        if (const auto path = FindPath(attributes, Join(pieces, 0, count), files))
        {
            const std::string candidate = InsertBeforeExtension(*path, Join(pieces, count, pieces.size()));
            if (files.exists(candidate))
            {
                return candidate;
            }
        }
    }
    return std::nullopt;
}

std::optional<std::string> FindFileAttribute(const CNamedAttributes& attributes, const CNamePieces& pieces,
                                             const CFileAccess& files)
{
    // What is there, but may not be named, is not looked for elsewhere.
    return Has(attributes, pieces) ? FindWholeAttribute(attributes, pieces, files)
                                   : FindShortenedAttribute(attributes, pieces, files);
}

std::optional<std::string> FindFileAttribute(const CNamedAttributes& attributes, const CNamePieces& base,
                                             const CNamePieces& suffix, const CFileAccess& files)
{
    CNamePieces all = base;
    all.insert(all.end(), suffix.begin(), suffix.end());
    if (Has(attributes, all))
    {
        return FindWholeAttribute(attributes, all, files);
    }
    for (std::size_t baseCount = base.size(); baseCount > 0; --baseCount)
    {
        for (std::size_t suffixCount = suffix.size(); suffixCount > 0; --suffixCount)
        {
            CNamePieces pieces = Beginning(base, baseCount);
            const CNamePieces rest = Beginning(suffix, suffixCount);
            pieces.insert(pieces.end(), rest.begin(), rest.end());
            if (auto path = FindShortenedAttribute(attributes, pieces, files))
            {
                return path;
            }
        }
    }
    return std::nullopt;
}

std::optional<std::string> FindSimpleFileAttribute(const CNamedAttributes& attributes,
                                                   const std::string& base, const std::string& suffix,
                                                   const CFileAccess& files)
{
    if (attributes.Get((base + suffix).c_str()) != nullptr)
    {
        return FindPath(attributes, base + suffix, files);
    }
    const auto path = FindPath(attributes, base, files);
    return path ? std::optional(InsertBeforeExtension(*path, suffix)) : std::nullopt;
}

} // namespace Mirel::SkinEngine
