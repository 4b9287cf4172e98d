#pragma once

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Why a text is no formula, for tools that tell a writer more than that it is none. A plain value, for any
/// thread.
struct CFormulaFault
{
    enum class EKind
    {
        None,
        Empty,
        TooLong,         ///< in bytes
        TooManyBrackets, ///< within one another
        TooDeep,         ///< operators in a row or calls within one another
        Syntax
    };

    EKind kind = EKind::None;

    /// Of a syntax error: the byte where what was read so far cannot go on; the length where the end cannot
    /// be.
    std::size_t position = 0;

    /// How often something that begins no token was passed over, which leaves a formula valid.
    int skips = 0;
};

} // namespace Mirel::SkinEngine
