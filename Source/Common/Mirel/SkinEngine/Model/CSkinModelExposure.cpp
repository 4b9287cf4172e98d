#include "Mirel/SkinEngine/Model/CSkinModelExposure.h"

#include "Mirel/SkinEngine/Model/EObjectFlags.h"
#include "Mirel/SkinEngine/Model/PatternMatch.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

void CSkinModelExposure::Use(const char* id)
{
    const std::string_view text = id == nullptr ? "" : id;
    if (text.empty())
    {
        return;
    }
    if (text.find('*') == std::string_view::npos)
    {
        exact.emplace(text);
    }
    else if (knownPatterns.emplace(text).second)
    {
        patterns.emplace_back(text);
    }
}

int CSkinModelExposure::GetParamFlags(const char* id) const
{
    if (id == nullptr)
    {
        return 0;
    }
    const std::string text = id;
    return (IsWantedText(text) ? objectItself : 0) | (IsWantedText(text + ".info") ? objectInfo : 0) |
           (IsWantedText(text + ".default") ? paramDefault : 0) |
           (IsWantedText(text + ".min") ? paramMin : 0) | (IsWantedText(text + ".max") ? paramMax : 0);
}

int CSkinModelExposure::GetStringOrActionFlags(const char* id) const
{
    return IsWanted(id) ? objectItself : 0;
}

int CSkinModelExposure::GetCurveFlags(const char* id) const
{
    if (id == nullptr)
    {
        return 0;
    }
    const std::string text = id;
    const bool infoWanted = IsWantedText(text + ".x_info") || IsWantedText(text + ".y_info");
    return (IsWantedText(text) ? objectItself : 0) | (infoWanted ? objectInfo : 0);
}

int CSkinModelExposure::GetSurfaceFlags(const char* id) const
{
    const int flags = GetCurveFlags(id);
    return id != nullptr && IsWantedText(std::string(id) + ".z_info") ? flags | objectInfo : flags;
}

bool CSkinModelExposure::IsWanted(const char* id) const
{
    return id != nullptr && IsWantedText(id);
}

bool CSkinModelExposure::IsWantedText(std::string_view id) const
{
    return exact.find(id) != exact.end() ||
           std::any_of(patterns.begin(), patterns.end(),
                       [id](const std::string& pattern) { return MatchesPattern(id, pattern); });
}

} // namespace Mirel::SkinEngine
