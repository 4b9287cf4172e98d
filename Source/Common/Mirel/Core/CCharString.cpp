#include "Mirel/Core/CCharString.h"

#include <cstring>
#include <utility>

namespace Mirel::Core
{

bool CCharString::Assign(const char* newText)
{
    const bool differs = std::strcmp(GetOrEmpty(), newText == nullptr ? "" : newText) != 0;
    std::optional<std::string> copy;
    if (newText != nullptr)
    {
        copy.emplace(newText);
    }
    text = std::move(copy);
    return differs;
}

} // namespace Mirel::Core
