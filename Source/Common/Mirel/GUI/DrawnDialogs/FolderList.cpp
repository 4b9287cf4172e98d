#include "Mirel/GUI/DrawnDialogs/FolderList.h"

#include "Mirel/Serialization/Utf8.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fnmatch.h>
#include <strings.h>
#include <tuple>

namespace Mirel::GUI
{

namespace
{

namespace fs = std::filesystem;

/// More would only keep the user waiting.
constexpr std::size_t mostEntries = 20000;

bool Matches(const std::string& name, const std::vector<std::string>& patterns)
{
    return patterns.empty() ||
           std::any_of(patterns.begin(), patterns.end(),
                       [&name](const std::string& pattern)
                       { return fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) == 0; });
}

bool StandsBefore(const SFolderEntry& a, const SFolderEntry& b)
{
    if (a.isFolder != b.isFolder)
    {
        return a.isFolder;
    }
    const int order = strcasecmp(a.name.c_str(), b.name.c_str());
    return order != 0 ? order < 0 : a.name < b.name;
}

} // namespace

std::vector<SFolderEntry> ListFolder(const std::string& folder, const std::vector<std::string>& patterns)
{
    std::vector<SFolderEntry> entries;
    std::error_code error;
    fs::directory_iterator place(folder, error);
    for (; !error && place != fs::directory_iterator() && entries.size() < mostEntries;
         place.increment(error))
    {
        std::error_code typeError;
        SFolderEntry entry;
        entry.name = place->path().filename().native();
        entry.isFolder = place->is_directory(typeError);
        const bool isHidden = entry.name.empty() || entry.name.front() == '.';
        if (!isHidden && (entry.isFolder || Matches(entry.name, patterns)))
        {
            entries.push_back(std::move(entry));
        }
    }
    std::sort(entries.begin(), entries.end(), StandsBefore);
    return entries;
}

std::string ToShownName(const std::string& name)
{
    if (Serialization::IsUtf8(name))
    {
        return name;
    }
    std::string shown;
    for (const char byte : name)
    {
        shown += static_cast<unsigned char>(byte) < 0x80U ? byte : '?';
    }
    return shown;
}

std::string ResolveTyped(const std::string& folder, const std::string& typed)
{
    const bool isFromHome = typed == "~" || typed.rfind("~/", 0) == 0;
    const fs::path path =
        isFromHome ? fs::path(GetHomeFolder() + typed.substr(1)) : fs::path(folder) / fs::path(typed);
    std::string resolved = path.lexically_normal().native();
    while (resolved.size() > 1 && resolved.back() == '/')
    {
        resolved.pop_back();
    }
    return resolved;
}

bool IsFolder(const std::string& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

bool IsFile(const std::string& path)
{
    std::error_code error;
    return fs::exists(path, error) && !fs::is_directory(path, error);
}

std::string GetParentFolder(const std::string& path)
{
    const std::string parent = fs::path(path).parent_path().native();
    return parent.empty() ? "/" : parent;
}

std::string GetHomeFolder()
{
    const char* const home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): nothing here sets any
    return home != nullptr && *home == '/' ? home : "/";
}

} // namespace Mirel::GUI
