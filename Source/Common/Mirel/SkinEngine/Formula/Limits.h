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

    /// Brackets within one another. The recogniser calls itself nine deep for each, on 1.6 KB of the stack; a
    /// curve of a dozen pieces nests a dozen calls of min and max.
    static constexpr int maxBrackets = 64;

    /// Nodes from the whole formula down to a number or name. Operators in a row nest too, each over the row
    /// before it, so that a sum may have 254 terms. Whatever walks the compiled tree recurses this deep.
    static constexpr int maxDepth = 256;
};

} // namespace Mirel::SkinEngine
