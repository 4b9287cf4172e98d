#pragma once

#include <span>

namespace PluginsFilters
{

enum class ETriggerDirection
{
    Up = 0,
    Down = 1,
};

/// The position at which a triggered trace begins: the first one past the newest crossing of the level, or -1
/// when the table holds no crossing.
///
/// Up is a value above the level after one that is at most the level; Down is a value below the level after
/// one that is at least the level. A newest value that equals the level (digital silence at level 0, above
/// all) or that is NaN begins the trace at position 1: it counts as triggered, not as a miss.
///
/// values: a ring. writePos: the position of its oldest value. Walks the ring twice at most; allocates
/// nothing.
int FindTrigger(std::span<const float> values, int writePos, float level, ETriggerDirection direction);

} // namespace PluginsFilters
