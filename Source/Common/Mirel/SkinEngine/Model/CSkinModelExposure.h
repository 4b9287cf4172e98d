#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/SkinEngine/Model/ISkinModelExposure.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Mirel::SkinEngine
{

/// The set of wanted identifiers of one model. An exact identifier costs one lookup; patterns are tried one
/// by one, in their order, for what the exact ones miss. Belongs to the thread that loads.
class CSkinModelExposure : public ISkinModelExposure
{
public:
    CSkinModelExposure() = default;
    CSkinModelExposure(const CSkinModelExposure&) = delete;
    CSkinModelExposure& operator=(const CSkinModelExposure&) = delete;

    void Use(const char* id) override;
    int GetParamFlags(const char* id) const override;
    int GetStringOrActionFlags(const char* id) const override;
    int GetCurveFlags(const char* id) const override;
    int GetSurfaceFlags(const char* id) const override;
    bool IsWanted(const char* id) const override;

private:
    using CIdentifiers = std::unordered_set<std::string, Containers::CStringHash, std::equal_to<>>;

    bool IsWantedText(std::string_view id) const;

    CIdentifiers exact;
    CIdentifiers knownPatterns;
    std::vector<std::string> patterns; ///< In the order of their first use, each once.
};

} // namespace Mirel::SkinEngine
