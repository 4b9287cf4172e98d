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

void ParseNumber(const char* text, bool& value)
{
    int number = 0;
    if (Parse(text, boolPrecision, number))
    {
        value = number != 0;
    }
}

void ParseNumber(const char* text, int& value)
{
    Parse(text, intPrecision, value);
}

void ParseNumber(const char* text, float& value)
{
    Parse(text, floatPrecision, value);
}

void ParseNumber(const char* text, double& value)
{
    Parse(text, doublePrecision, value);
}

} // namespace Mirel::Serialization
