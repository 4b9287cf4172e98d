#include "Mirel/SkinEngine/Language/VariableSubstitution.h"

#include "Mirel/SkinEngine/Limits.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

constexpr char delimiter = '$';

/// Makes the replaced text; empty handed if nothing was replaced. False if it became longer than most.
bool Replace(const Containers::CNamedAttributes& variables, const std::string& text, std::size_t most,
             std::string& output, bool& replaced)
{
    std::string name;
    std::size_t copied = 0;
    std::size_t opening = text.find(delimiter);
    for (std::size_t closing = text.find(delimiter, opening + 1); closing != std::string::npos;
         closing = text.find(delimiter, opening + 1))
    {
        name.assign(text, opening + 1, closing - opening - 1);
        if (const char* value = variables.Get(name.c_str()))
        {
            // A closing "$" that opened this name may have been copied already.
            if (opening > copied)
            {
                output.append(text, copied, opening - copied);
            }
            const std::size_t length = std::strlen(value);
            if (output.size() + length > most)
            {
                return false;
            }
            output.append(value, length);
            copied = closing + 1;
            replaced = true;
        }
        opening = closing;
    }
    if (replaced && copied < text.size())
    {
        output.append(text, copied, std::string::npos);
    }
    return output.size() <= most;
}

bool SubstituteWithin(const Containers::CNamedAttributes& variables, std::string& text, std::size_t most)
{
    if (text.find(delimiter) == std::string::npos)
    {
        return true;
    }
    std::string output;
    bool replaced = false;
    if (!Replace(variables, text, most, output, replaced))
    {
        return false;
    }
    if (replaced)
    {
        text = std::move(output);
    }
    return true;
}

} // namespace

bool SubstituteVariables(const Containers::CNamedAttributes& variables, std::string& text)
{
    return SubstituteWithin(variables, text, CLimits::maxAttributeBytes);
}

bool SubstituteVariables(const Containers::CNamedAttributes& variables,
                         Containers::CNamedAttributes& attributes)
{
    std::size_t left = CLimits::maxElementBytes;
    bool complete = true;
    attributes.Visit(
        [&](const std::string&, std::string& value)
        {
            if (!SubstituteWithin(variables, value, std::min(left, CLimits::maxAttributeBytes)))
            {
                complete = false;
            }
            left -= std::min(left, value.size());
        });
    return complete;
}

} // namespace Mirel::SkinEngine
