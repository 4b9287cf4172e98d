#pragma once

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Elements that one model file, or one item of a collection, builds from: each may stand for an object with
/// six names. The file's own limits would let many times as many pass.
constexpr int maxModelElements = 131072;

/// Identifiers in one list of a link. Every change of a source takes the time of all, and a list may name the
/// same object any number of times. No honest file comes near it.
constexpr std::size_t maxLinkEnds = 4096;

/// Sources of a link up to which one that comes back takes its old place among them.
constexpr std::size_t maxOrderedSources = 256;

} // namespace Mirel::SkinEngine
