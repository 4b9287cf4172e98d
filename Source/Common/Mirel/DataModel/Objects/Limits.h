#pragma once

#include <cstddef>

namespace Mirel::DataModel::Objects
{

// Limits on what a skin or model file can ask for. No honest file comes near them.

/// Bytes of one expanded pattern. A pattern of doubled braces grows with the square of its length, and is
/// expanded on every change of a value.
constexpr std::size_t maxExpandedText = 65536;

/// Names of one enumeration. A name can be set by index, and the index comes from a parameter's range.
constexpr int maxEnumNames = 4096;

/// Bytes of one text that a link joins. Links in a ring join a text to itself: it doubles with every update.
constexpr std::size_t maxJoinedText = 65536;

/// Functions in one curve that a link combines, those inside a combined one included. Links in a ring combine
/// a curve with itself, and the evaluation goes as deep as the functions are nested.
constexpr int maxCombinedFunctions = 1024;

/// Curves of a surface's history, each a whole function: over three minutes at 20 a second.
constexpr int maxCurvesOverTime = 4096;

} // namespace Mirel::DataModel::Objects
