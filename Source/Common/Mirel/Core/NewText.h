#pragma once

#include <cstring>
#include <string_view>

namespace Mirel::Core
{

/// A copy of the text with a terminating zero, allocated with array-new: the form in which texts are handed
/// out as results. The caller frees it with array-delete.
inline char* NewText(std::string_view text)
{
    char* copy = new char[text.size() + 1];
    if (!text.empty())
    {
        std::memcpy(copy, text.data(), text.size());
    }
    copy[text.size()] = '\0';
    return copy;
}

} // namespace Mirel::Core
