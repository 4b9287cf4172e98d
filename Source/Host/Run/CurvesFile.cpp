#include "Host/Run/CurvesFile.h"

#include "Mirel/Serialization/WholeFile.h"

#include <charconv>
#include <iterator>
#include <string_view>
#include <vector>

namespace Host
{

namespace
{

/// A field of a table: in quotes where a comma, a quote or a line break would end it.
std::string Field(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
    {
        return std::string(text);
    }
    std::string quoted = "\"";
    for (const char letter : text)
    {
        quoted += letter;
        if (letter == '"')
        {
            quoted += letter;
        }
    }
    return quoted + '"';
}

void AppendNumber(std::string& text, double number)
{
    constexpr int digits = 9;
    char buffer[32];
    const std::to_chars_result result =
        std::to_chars(std::begin(buffer), std::end(buffer), number, std::chars_format::general, digits);
    text.append(buffer, result.ptr);
}

struct CColumn
{
    std::string name;
    std::vector<float> values;
};

CColumn ReadColumn(IPublishedCurves& curves, std::int32_t curve, const std::vector<double>& shares)
{
    const char* name = "";
    float minX = 0.0f;
    float maxX = 0.0f;
    float minY = 0.0f;
    float maxY = 0.0f;
    curves.GetCurveName(curve, &name);
    curves.GetCurveRange(curve, &minX, &maxX, &minY, &maxY);
    const auto lowest = static_cast<double>(minX);
    const auto highest = static_cast<double>(maxX);
    std::vector<float> places;
    places.reserve(shares.size());
    for (const double share : shares)
    {
        places.push_back(static_cast<float>(lowest + share * (highest - lowest)));
    }
    CColumn column = {name, std::vector<float>(shares.size())};
    curves.EvaluateCurve(curve, places.data(), static_cast<std::int32_t>(places.size()),
                         column.values.data());
    return column;
}

} // namespace

bool WriteCurves(IPublishedCurves& curves, int points, const std::string& path, std::string& error)
{
    std::vector<double> shares;
    shares.reserve(static_cast<std::size_t>(points));
    for (int i = 0; i < points; ++i)
    {
        shares.push_back(static_cast<double>(i) / (points - 1));
    }
    std::int32_t count = 0;
    curves.GetCurveCount(&count);
    std::vector<CColumn> columns;
    columns.reserve(static_cast<std::size_t>(count));
    std::string text = "x";
    for (std::int32_t curve = 0; curve < count; ++curve)
    {
        columns.push_back(ReadColumn(curves, curve, shares));
        text += ',' + Field(columns.back().name);
    }
    text += '\n';
    for (std::size_t row = 0; row < shares.size(); ++row)
    {
        AppendNumber(text, shares[row]);
        for (const CColumn& column : columns)
        {
            text += ',';
            AppendNumber(text, static_cast<double>(column.values[row]));
        }
        text += '\n';
    }
    if (!Mirel::Serialization::WriteFileWhole(path.c_str(), text))
    {
        error = "cannot write \"" + path + '"';
        return false;
    }
    return true;
}

} // namespace Host
