#pragma once

#include <string>
#include <string_view>

namespace Mirel::SkinEngine
{

/// The text between single quotes, for messages.
inline std::string Quoted(std::string_view text)
{
    std::string quoted(1, '\'');
    quoted.append(text).push_back('\'');
    return quoted;
}

} // namespace Mirel::SkinEngine
