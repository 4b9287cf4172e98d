#pragma once

namespace Mirel::Graphics
{

/// The segment from (ax, ay) to (bx, by), between pixels.
struct CSegment
{
    double ax = 0.0;
    double ay = 0.0;
    double bx = 0.0;
    double by = 0.0;
};

/// Keeps what lies within the box. False, with the segment undefined, if nothing does or an end is not
/// finite.
bool ClipSegment(CSegment& segment, double left, double top, double right, double bottom);

} // namespace Mirel::Graphics
