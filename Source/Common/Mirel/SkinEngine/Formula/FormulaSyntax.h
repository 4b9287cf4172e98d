#pragma once

#include "Mirel/SkinEngine/Formula/CFormulaFault.h"
#include "Mirel/SkinEngine/Formula/CFormulaNode.h"

#include <optional>

namespace Mirel::SkinEngine
{

/// The tree of a formula. Nothing for a null text, a syntax error, or a formula beyond CFormulaLimits.
/// A character that begins no token is skipped, as if it were not there. With `fault` it tells what it met,
/// also where it skipped something. Any thread.
std::optional<CFormulaNode> ParseFormula(const char* text, CFormulaFault* fault = nullptr);

} // namespace Mirel::SkinEngine
