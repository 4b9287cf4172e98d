#pragma once

namespace Mirel::SkinEngine
{

/// What is wanted of an object: a set of bits, as an exposure gives it. With none of them nothing uses the
/// object, and nothing needs to be built.
enum EObjectFlags : int
{
    objectItself = 1 << 0, ///< The object under its own identifier.
    objectInfo = 1 << 1,   ///< Its description, or those of its axes.
    paramDefault = 1 << 2, ///< The default value as a parameter.
    paramMin = 1 << 3,     ///< The low end of the range as a parameter.
    paramMax = 1 << 4,     ///< The high end.
    allObjectFlags = (1 << 5) - 1
};

} // namespace Mirel::SkinEngine
