#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Mirel::Containers
{

/// Hash of a text that lets a map of strings be searched with a text of any form, without a copy.
struct CStringHash
{
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

/// A map from text to T. Keys compare as exact text; the order of iteration is not part of any contract.
template <class T>
using TStringMap = std::unordered_map<std::string, T, CStringHash, std::equal_to<>>;

} // namespace Mirel::Containers
