#include "Mirel/DataModel/Objects/MetricPrefix.h"

#include <array>
#include <cstddef>

namespace Mirel::DataModel::Objects
{

namespace
{

struct CPrefix
{
    const char* text;
    int thousands;
};

/// Where a power has several, the first is the one that is printed.
constexpr std::array<CPrefix, 11> prefixes = {{{"p", -3},
                                               {"n", -3},
                                               {"\u00B5", -2},
                                               {"\u03BC", -2},
                                               {"u", -2},
                                               {"m", -1},
                                               {"k", 1},
                                               {"K", 1},
                                               {"M", 2},
                                               {"G", 3},
                                               {"T", 4}}};

} // namespace

const char* MetricPrefixOf(int thousands)
{
    for (const CPrefix& prefix : prefixes)
    {
        if (prefix.thousands == thousands)
        {
            return prefix.text;
        }
    }
    return nullptr;
}

bool TakeMetricPrefix(std::string_view& text, int& thousands)
{
    for (const CPrefix& prefix : prefixes)
    {
        if (text.starts_with(prefix.text))
        {
            text.remove_prefix(std::string_view(prefix.text).size());
            thousands = prefix.thousands;
            return true;
        }
    }
    return false;
}

} // namespace Mirel::DataModel::Objects
