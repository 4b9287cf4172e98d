#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include "Mirel/Core/CAutoCLocale.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

const char* FindText(const CNamedAttributes& attributes, const std::string& name)
{
    return attributes.Get(name.c_str());
}

const char* GetText(const CNamedAttributes& attributes, const std::string& name, const char* missing)
{
    const char* text = FindText(attributes, name);
    return text == nullptr ? missing : text;
}

bool IsTrue(const CNamedAttributes& attributes, const std::string& name)
{
    return std::string_view(GetText(attributes, name)) == "true";
}

bool IsNotFalse(const CNamedAttributes& attributes, const std::string& name)
{
    return std::string_view(GetText(attributes, name)) != "false";
}

bool ReadNumber(const CNamedAttributes& attributes, const std::string& name, float& value)
{
    double number = 0.0;
    if (!ReadNumber(attributes, name, number))
    {
        return false;
    }
    constexpr double largest = static_cast<double>(std::numeric_limits<float>::max());
    // What a float cannot hold, but infinity, ends where a float does.
    value = static_cast<float>(std::isfinite(number) ? std::clamp(number, -largest, largest) : number);
    return true;
}

bool ReadNumber(const CNamedAttributes& attributes, const std::string& name, double& value)
{
    const char* text = FindText(attributes, name);
    if (text == nullptr)
    {
        return false;
    }
    const Core::CAutoCLocale numbersWithPoint;
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    if (end == text)
    {
        return false;
    }
    value = number;
    return true;
}

bool ReadNumber(const CNamedAttributes& attributes, const std::string& name, int& value)
{
    double number = 0.0;
    if (!ReadNumber(attributes, name, number) || std::isnan(number))
    {
        return false;
    }
    value = static_cast<int>(
        std::clamp<double>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    return true;
}

void ReadRefreshTime(const CNamedAttributes& attributes, Core::IRefreshTime& object)
{
    int milliseconds = 0;
    if (ReadNumber(attributes, "refresh_time_ms", milliseconds) && milliseconds > 0)
    {
        object.SetRefreshTime(milliseconds);
    }
}

std::vector<std::string> SplitText(const std::string& text)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(';'); end != std::string::npos; end = text.find(';', begin))
    {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.push_back(text.substr(begin));
    return parts;
}

std::vector<std::string> SplitIdentifiers(const std::string& text)
{
    std::vector<std::string> identifiers = SplitText(text);
    std::erase(identifiers, std::string());
    return identifiers;
}

} // namespace Mirel::SkinEngine
