#pragma once

#include <optional>
#include <string>

namespace SkinCheck
{

/// A formula with values for its variables: without any it is a number.
struct SFormulaQuestion
{
    std::string text;
    std::optional<float> x;
    std::optional<float> y;
};

/// The value; nothing for an invalid formula. Names of objects stand for 0.
std::optional<float> EvaluateFormula(const SFormulaQuestion& question);

} // namespace SkinCheck
