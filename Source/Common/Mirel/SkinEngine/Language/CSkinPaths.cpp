#include "Mirel/SkinEngine/Language/CSkinPaths.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace Mirel::SkinEngine
{

std::string NormalizePath(std::string_view path)
{
    std::string normalized;
    normalized.reserve(path.size());
    for (char c : path)
    {
        c = c == '\\' ? '/' : c;
        if (c != '/' || normalized.empty() || normalized.back() != '/')
        {
            normalized.push_back(c);
        }
    }
    return normalized;
}

void CSkinPaths::SetDataFolder(std::string path)
{
    dataFolder = std::move(path);
    canonicalData = dataFolder.empty() ? "" : Canonical(dataFolder);
    inside.clear();
}

std::string CSkinPaths::Resolve(const std::string& root, std::string_view value)
{
    std::string path = NormalizePath(value);
    if (!path.empty() && path.front() == '/' && IsInside(root, path))
    {
        return path;
    }
    return NormalizePath(root + path);
}

bool CSkinPaths::IsInside(const std::string& root, const std::string& path)
{
    UseRoot(root);
    const auto known = inside.find(path);
    if (known != inside.end())
    {
        return known->second;
    }
    ++lookups;
    std::error_code error;
    const std::filesystem::path resolved =
        std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error);
    const bool result = !error && IsBelow(resolved.string());
    inside.emplace(path, result);
    return result;
}

bool CSkinPaths::Exists(const std::string& path)
{
    const auto known = existing.find(path);
    if (known != existing.end())
    {
        return known->second;
    }
    ++lookups;
    std::error_code error;
    const bool result = std::filesystem::exists(path, error);
    existing.emplace(path, result);
    return result;
}

int CSkinPaths::TakeLookupCount()
{
    return std::exchange(lookups, 0);
}

std::string CSkinPaths::Canonical(const std::string& folder)
{
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(folder.empty() ? "." : folder, error);
    std::string canonical = std::filesystem::weakly_canonical(absolute, error).string();
    if (canonical.empty() || canonical.back() != '/')
    {
        canonical += '/';
    }
    return canonical;
}

bool CSkinPaths::IsBelow(const std::string& canonicalPath) const
{
    const std::string folder = canonicalPath + '/';
    return folder.starts_with(canonicalRoot) || (!canonicalData.empty() && folder.starts_with(canonicalData));
}

void CSkinPaths::UseRoot(const std::string& root)
{
    if (usedRoot != root)
    {
        usedRoot = root;
        canonicalRoot = Canonical(root);
        inside.clear();
    }
}

} // namespace Mirel::SkinEngine
