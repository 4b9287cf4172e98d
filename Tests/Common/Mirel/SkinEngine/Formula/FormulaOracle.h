#pragma once

#include <optional>
#include <string_view>

namespace Mirel::SkinEngine
{

/// What a formula in x and y is, found by a second reading of the language that shares nothing with the
/// first: a descent over the characters that computes as it goes.
struct CFormulaVerdict
{
    bool isSyntax = false;      ///< The text follows the grammar.
    std::optional<float> value; ///< Nothing for a text without a meaning.
};

CFormulaVerdict JudgeFormula(std::string_view text, float x, float y);

} // namespace Mirel::SkinEngine
