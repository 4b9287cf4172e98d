#pragma once

#include <charconv>
#include <string>
#include <string_view>

namespace Mirel::Serialization
{

/// The key of a list's item: the name, then the index in plain decimal ("value12").
inline std::string IndexedKey(std::string_view name, int index)
{
    constexpr int maxDigits = 12;
    char digits[maxDigits];
    const auto end = std::to_chars(digits, digits + maxDigits, index);
    std::string key(name);
    key.append(digits, end.ptr);
    return key;
}

} // namespace Mirel::Serialization
