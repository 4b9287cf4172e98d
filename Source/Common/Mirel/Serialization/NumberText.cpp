#include "Mirel/Serialization/NumberText.h"

#include <locale>
#include <sstream>

namespace Mirel::Serialization
{

namespace
{

constexpr int boolPrecision = 5;
constexpr int intPrecision = 14;
constexpr int floatPrecision = 11;
constexpr int doublePrecision = 20;

template <class T>
bool Format(T value, int precision, std::string& text)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream.precision(precision);
    stream << value;
    if (!stream)
    {
        return false;
    }
    text = stream.str();
    return true;
}

template <class T>
bool Parse(const char* text, int precision, T& value)
{
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    stream.precision(precision);
    // A failed extraction stores 0 or the nearest end of the range, which must not reach the caller.
    T parsed{};
    if (!(stream >> parsed))
    {
        return false;
    }
    value = parsed;
    return true;
}

} // namespace

bool FormatNumber(bool value, std::string& text)
{
    return Format(value ? 1 : 0, boolPrecision, text);
}

bool FormatNumber(int value, std::string& text)
{
    return Format(value, intPrecision, text);
}

bool FormatNumber(float value, std::string& text)
{
    return Format(value, floatPrecision, text);
}

bool FormatNumber(double value, std::string& text)
{
    return Format(value, doublePrecision, text);
}

bool ParseNumber(const char* text, bool& value)
{
    int number = 0;
    const bool parsed = Parse(text, boolPrecision, number);
    if (parsed)
    {
        value = number != 0;
    }
    return parsed;
}

bool ParseNumber(const char* text, int& value)
{
    return Parse(text, intPrecision, value);
}

bool ParseNumber(const char* text, float& value)
{
    return Parse(text, floatPrecision, value);
}

bool ParseNumber(const char* text, double& value)
{
    return Parse(text, doublePrecision, value);
}

} // namespace Mirel::Serialization
