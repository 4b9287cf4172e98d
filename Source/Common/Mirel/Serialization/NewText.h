#pragma once

#include <cstring>

namespace Mirel::Serialization
{

/// A copy made with array-new.
inline char* NewText(const char* text)
{
    const std::size_t size = std::strlen(text) + 1;
    char* copy = new char[size];
    std::memcpy(copy, text, size);
    return copy;
}

} // namespace Mirel::Serialization
