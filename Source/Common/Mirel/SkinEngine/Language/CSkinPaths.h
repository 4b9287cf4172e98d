#pragma once

#include "Mirel/Containers/TStringMap.h"

#include <optional>
#include <string>
#include <string_view>

namespace Mirel::SkinEngine
{

/// "\" becomes "/", and "/" in a row become one. "." and ".." stay.
std::string NormalizePath(std::string_view path);

/// Says which files a skin may name. Belongs to the thread that parses.
class CSkinPaths
{
public:
    /// The product's own data folder; empty for none.
    void SetDataFolder(std::string path);
    const std::string& GetDataFolder() const { return dataFolder; }

    /// The path that a value in a skin means: one below the root folder, or an absolute one that already
    /// leads into one of the two folders. Normalized.
    std::string Resolve(const std::string& root, std::string_view value);

    /// Whether the path, with its symbolic links followed as far as it exists, stands in the root or in the
    /// data folder.
    bool IsInside(const std::string& root, const std::string& path);

    /// Whether there is such a file. What was found is kept for the life of this object.
    bool Exists(const std::string& path);

    /// Lookups that the caches could not answer since the last call: each was a walk through the file system.
    int TakeLookupCount();

private:
    /// Ends with "/".
    static std::string Canonical(const std::string& folder);
    bool IsBelow(const std::string& canonicalPath) const;
    void UseRoot(const std::string& root);

    std::string dataFolder;
    std::string canonicalData;
    std::optional<std::string> usedRoot;
    std::string canonicalRoot;
    Containers::TStringMap<bool> inside; ///< Of the used root and the data folder.
    Containers::TStringMap<bool> existing;
    int lookups = 0;
};

} // namespace Mirel::SkinEngine
