#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>

namespace Tests
{

/// The parts in the order of the list, which is also the order in which they are made.
inline std::string Joined(std::initializer_list<std::string> parts)
{
    std::string joined;
    for (const std::string& part : parts)
    {
        joined.append(part);
    }
    return joined;
}

/// The text, `count` times in a row.
inline std::string Repeated(const std::string& text, int count)
{
    std::string repeated;
    repeated.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        repeated += text;
    }
    return repeated;
}

} // namespace Tests
