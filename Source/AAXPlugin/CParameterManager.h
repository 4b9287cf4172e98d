#pragma once

#include "AAXPlugin/CAAXPluginParameter.h"

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace MirelExt::AAXPlugin
{

/// The parameters of an instance, by index and by identifier. Filled once, before others know it; then any
/// thread may look in it, which allocates nothing.
class CParameterManager
{
public:
    void Add(std::unique_ptr<CAAXPluginParameter> parameter) { parameters.push_back(std::move(parameter)); }

    /// After the last Add: makes the parameters findable by identifier. Of two with the same identifier the
    /// first is found.
    void BuildTable();

    void Clear();

    int GetCount() const { return static_cast<int>(parameters.size()); }
    CAAXPluginParameter& operator[](int index) const { return *parameters[static_cast<std::size_t>(index)]; }

    /// -1 if there is none; null is none.
    int FindIndex(const char* identifier) const;

    /// Null if there is none.
    CAAXPluginParameter* Find(const char* identifier) const;

private:
    std::vector<std::unique_ptr<CAAXPluginParameter>> parameters;
    std::unordered_map<std::string_view, int> table; ///< The keys are the parameters' own texts.
};

} // namespace MirelExt::AAXPlugin
