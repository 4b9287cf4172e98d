#include "Mirel/GUI/Native/CClickCounter.h"

#include <cstdlib>

namespace Mirel::GUI
{

int CClickCounter::CountPress(EMouseButton button, CPoint screenPosition, std::uint32_t timeMs)
{
    const bool isNear = std::abs(std::int64_t{screenPosition.x} - lastPosition.x) <= furthest &&
                        std::abs(std::int64_t{screenPosition.y} - lastPosition.y) <= furthest;
    const bool follows = button == lastButton && isNear && timeMs - lastTimeMs <= longestGapMs;
    int& count = counts[static_cast<std::size_t>(button)];
    count = follows ? count + 1 : 1;
    lastButton = button;
    lastPosition = screenPosition;
    lastTimeMs = timeMs;
    return count;
}

} // namespace Mirel::GUI
