#pragma once

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Identifiers in one list of a link. Every change of a source takes the time of all, and a list may name the
/// same object any number of times. No honest file comes near it.
constexpr std::size_t maxLinkEnds = 4096;

/// Sources of a link up to which one that comes back takes its old place among them.
constexpr std::size_t maxOrderedSources = 256;

} // namespace Mirel::SkinEngine
