#include "Host/Run/NearestName.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numeric>

namespace Host
{

namespace
{

char Lowered(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool IsSameLetter(char left, char right)
{
    return Lowered(left) == Lowered(right);
}

/// The Levenshtein distance, row by row.
std::size_t Distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i)
    {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t k = 0; k < right.size(); ++k)
        {
            const std::size_t exchanged = diagonal + (IsSameLetter(left[i], right[k]) ? 0U : 1U);
            diagonal = row[k + 1];
            row[k + 1] = std::min({exchanged, row[k] + 1, row[k + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string FindNearestName(std::string_view name, const std::vector<std::string>& names)
{
    std::string nearest;
    std::size_t least = std::numeric_limits<std::size_t>::max();
    for (const std::string& candidate : names)
    {
        const std::size_t distance = Distance(name, candidate);
        if (distance < least)
        {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

bool IsSameName(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), &IsSameLetter);
}

} // namespace Host
