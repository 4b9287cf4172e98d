#pragma once

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Bounds on formulas, since skins and models come from strangers. A formula beyond one is invalid. Within
/// them a formula is compiled, copied, evaluated and destroyed on a stack of 256 KB.
struct CFormulaLimits
{
    /// Bytes of a formula. A sum over 64 channels with long identifiers has 4 KB; a byte of text can cost the
    /// recogniser a token and a node of half a kilobyte.
    static constexpr std::size_t maxBytes = std::size_t{1} << 14U;

    /// Brackets within one another. The recogniser calls itself nine deep for each.
    static constexpr int maxBrackets = 100;

    /// Nodes from the whole formula down to a number or name: operators in a row nest as brackets do, since
    /// each takes the row before it for its left side. Whatever walks the compiled tree recurses this deep.
    static constexpr int maxDepth = 256;
};

} // namespace Mirel::SkinEngine
