#pragma once

#include "AAXPlugin/Interface/AAX_IEffectParameters.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace Host
{

/// The parameters of an instance by name, with values in their own units. The instance must outlive it. One
/// thread only.
class CParameterSet
{
public:
    struct CParameter
    {
        std::string id;
        std::string name;
        int steps; ///< -1 for a continuous one.
        double min;
        double max;
    };

    explicit CParameterSet(AAX_IEffectParameters& parameters_);

    const std::vector<CParameter>& GetAll() const { return all; }

    /// By name or identifier, whatever the capitals. Null, with one line in `error` that names the nearest,
    /// for an unknown one.
    const CParameter* Find(const std::string& name, std::string& error) const;

    /// A number in the parameter's units, or a text that the parameter shows. False with one line in `error`
    /// for a number outside the range and for a text that is neither.
    bool ParseValue(const CParameter& parameter, const std::string& text, double& normalized,
                    std::string& error) const;

    /// The text that the parameter shows for a value.
    std::string GetText(const CParameter& parameter, double normalized) const;

    /// A head line, and a line for each parameter: identifier, name, steps, range, default, value, text.
    void Print(std::ostream& out) const;

private:
    bool FindText(const CParameter& parameter, const std::string& text, double& normalized) const;

    AAX_IEffectParameters& parameters;
    std::vector<CParameter> all;
};

} // namespace Host
