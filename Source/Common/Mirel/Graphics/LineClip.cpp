#include "Mirel/Graphics/LineClip.h"

#include <cmath>

namespace Mirel::Graphics
{

namespace
{

/// Keeps of a..b, along one axis, what is not below the limit; otherA and otherB are the ends along the other
/// axis. The new end is the limit itself: what the arithmetic would give is far off where a and b are huge.
bool KeepNotBelow(double limit, double& a, double& b, double& otherA, double& otherB)
{
    if (a < limit && b < limit)
    {
        return false;
    }
    if (a < limit)
    {
        otherA += (limit - a) / (b - a) * (otherB - otherA);
        a = limit;
    }
    else if (b < limit)
    {
        otherB += (limit - b) / (a - b) * (otherA - otherB);
        b = limit;
    }
    return true;
}

bool KeepWithin(double low, double high, double& a, double& b, double& otherA, double& otherB)
{
    if (!KeepNotBelow(low, a, b, otherA, otherB))
    {
        return false;
    }
    a = -a;
    b = -b;
    const bool kept = KeepNotBelow(-high, a, b, otherA, otherB);
    a = -a;
    b = -b;
    return kept;
}

} // namespace

bool ClipSegment(CSegment& segment, double left, double top, double right, double bottom)
{
    return std::isfinite(segment.bx - segment.ax) && std::isfinite(segment.by - segment.ay) &&
           KeepWithin(left, right, segment.ax, segment.bx, segment.ay, segment.by) &&
           KeepWithin(top, bottom, segment.ay, segment.by, segment.ax, segment.bx);
}

} // namespace Mirel::Graphics
