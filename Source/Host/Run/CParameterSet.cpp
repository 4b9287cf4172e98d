#include "Host/Run/CParameterSet.h"

#include "AAXPlugin/Interface/AAXResults.h"
#include "Host/Run/NearestName.h"
#include "Host/Run/TimedEvents.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <ostream>

namespace Host
{

namespace
{

constexpr int TextCapacity = 256;

/// Values that may have a name: the steps, or the whole numbers of a continuous parameter, which an
/// enumeration can name, too. More than so many are no texts to choose from.
std::vector<double> NamedPlaces(const CParameterSet::CParameter& parameter)
{
    constexpr double most = 1000.0;
    const double range = parameter.max - parameter.min;
    const double steps = parameter.steps < 0 ? std::floor(range) + 1.0 : parameter.steps;
    const double last = parameter.steps < 0 ? range : steps - 1.0;
    std::vector<double> places;
    for (double i = 0.0; i < steps && steps <= most; i += 1.0)
    {
        places.push_back(last > 0.0 ? i / last : 0.0);
    }
    return places;
}

/// A number without a needless tail, the same in every locale.
std::string NumberText(double number)
{
    char text[32];
    const std::to_chars_result result =
        std::to_chars(std::begin(text), std::end(text), number, std::chars_format::general, 6);
    return {text, result.ptr};
}

double FromNormalized(const CParameterSet::CParameter& parameter, double normalized)
{
    return parameter.min + normalized * (parameter.max - parameter.min);
}

std::string PaddedCell(const std::vector<std::vector<std::string>>& rows, std::size_t column, std::size_t row)
{
    std::size_t width = 0;
    for (const std::vector<std::string>& cells : rows)
    {
        width = std::max(width, cells[column].size());
    }
    const std::string& cell = rows[row][column];
    const bool last = column + 1 == rows[row].size();
    return last ? cell : cell + std::string(width + 2 - cell.size(), ' ');
}

} // namespace

CParameterSet::CParameterSet(AAX_IEffectParameters& parameters_) : parameters(parameters_)
{
    std::int32_t count = 0;
    parameters.GetParameterCount(&count);
    for (std::int32_t i = 0; i < count; ++i)
    {
        const char* id = nullptr;
        if (parameters.GetParameterId(i, &id) != AAXResult::Ok)
        {
            continue;
        }
        char name[TextCapacity] = {};
        CParameter& parameter = all.emplace_back(CParameter{id, "", -1, 0.0, 1.0});
        parameters.GetParameterName(id, name, TextCapacity);
        parameters.GetParameterStepCount(id, &parameter.steps);
        parameters.GetParameterRange(id, &parameter.min, &parameter.max);
        parameter.name = name;
    }
}

const CParameterSet::CParameter* CParameterSet::Find(const std::string& name, std::string& error) const
{
    const auto found =
        std::find_if(all.begin(), all.end(),
                     [&](const CParameter& parameter)
                     { return IsSameName(parameter.name, name) || IsSameName(parameter.id, name); });
    if (found != all.end())
    {
        return &*found;
    }
    std::vector<std::string> names;
    std::transform(all.begin(), all.end(), std::back_inserter(names),
                   [](const CParameter& parameter) { return parameter.name; });
    error = "no parameter is called \"" + name + '"';
    const std::string nearest = FindNearestName(name, names);
    if (!nearest.empty())
    {
        error += "; the nearest is \"" + nearest + '"';
    }
    return nullptr;
}

bool CParameterSet::ParseValue(const CParameter& parameter, const std::string& text, double& normalized,
                               std::string& error) const
{
    // What the parameter shows comes first: a text such as "2" may stand for a value of another number.
    if (FindText(parameter, text, normalized))
    {
        return true;
    }
    double value = 0.0;
    if (!ParseNumber(text, value))
    {
        error = '"' + text + "\" is no value of \"" + parameter.name + '"';
        return false;
    }
    if (value < parameter.min || value > parameter.max)
    {
        error = NumberText(value) + " is outside the range of \"" + parameter.name + "\", " +
                NumberText(parameter.min) + " to " + NumberText(parameter.max);
        return false;
    }
    const double range = parameter.max - parameter.min;
    normalized = range > 0.0 ? (value - parameter.min) / range : 0.0;
    return true;
}

bool CParameterSet::FindText(const CParameter& parameter, const std::string& text, double& normalized) const
{
    for (const double place : NamedPlaces(parameter))
    {
        if (IsSameName(GetText(parameter, place), text))
        {
            normalized = place;
            return true;
        }
    }
    return false;
}

std::string CParameterSet::GetText(const CParameter& parameter, double normalized) const
{
    char text[TextCapacity] = {};
    parameters.GetParameterText(parameter.id.c_str(), normalized, text, TextCapacity);
    return text;
}

void CParameterSet::Print(std::ostream& out) const
{
    std::vector<std::vector<std::string>> rows = {
        {"identifier", "name", "steps", "range", "default", "value", "text"}};
    for (const CParameter& parameter : all)
    {
        double defaultPlace = 0.0;
        double place = 0.0;
        parameters.GetParameterDefault(parameter.id.c_str(), &defaultPlace);
        parameters.GetParameterValue(parameter.id.c_str(), &place);
        rows.push_back({parameter.id, parameter.name,
                        parameter.steps < 0 ? "continuous" : std::to_string(parameter.steps),
                        NumberText(parameter.min) + " to " + NumberText(parameter.max),
                        NumberText(FromNormalized(parameter, defaultPlace)),
                        NumberText(FromNormalized(parameter, place)), GetText(parameter, place)});
    }
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        for (std::size_t column = 0; column < rows[row].size(); ++column)
        {
            out << PaddedCell(rows, column, row);
        }
        out << '\n';
    }
}

} // namespace Host
