#include "Mirel/GUI/Native/CClickCounter.h"

#include <cstdlib>

namespace Mirel::GUI
{

int CClickCounter::CountPress(EMouseButton button, CPoint screenPosition, std::uint32_t timeMs)
{
    const bool follows =
        button == lastButton && IsNear(screenPosition) && timeMs - lastTimeMs <= longestGapMs;
    int& count = counts[static_cast<std::size_t>(button)];
    count = follows ? count + 1 : 1;
    lastButton = button;
    lastPosition = screenPosition;
    lastTimeMs = timeMs;
    return count;
}

int CClickCounter::CountRelease(EMouseButton button, CPoint screenPosition)
{
    if (button == lastButton && !IsNear(screenPosition))
    {
        Reset();
    }
    return counts[static_cast<std::size_t>(button)];
}

bool CClickCounter::IsNear(CPoint screenPosition) const
{
    return std::abs(std::int64_t{screenPosition.x} - lastPosition.x) <= furthest &&
           std::abs(std::int64_t{screenPosition.y} - lastPosition.y) <= furthest;
}

} // namespace Mirel::GUI
