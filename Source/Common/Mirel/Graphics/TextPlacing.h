#pragma once

#include "Mirel/Graphics/CTextLayout.h"
#include "Mirel/Graphics/Geometry.h"

namespace Mirel::Graphics
{

class CFont;

/// Where a turned text lies in its rectangle: a box that touches the rectangle's sides from inside, in a
/// space whose origin is moved by origin and which is then turned by angle.
struct CTurnedBox
{
    double originX = 0.0;
    double originY = 0.0;
    double width = 0.0; ///< Negative if no such box fits the rectangle.
    double height = 0.0;
    double angle = 0.0; ///< Radians, counterclockwise on the screen.
};

/// escapement in degrees. A rectangle does not determine the box of a text that is turned by 45 degrees: it
/// takes the height of the text for that of the box.
CTurnedBox TurnIn(CSize rect, float escapement, double textHeight);

/// The size of the box around a text of that size that is turned by so many degrees.
CSize GetTurnedSize(CSize size, float escapement);

/// The size of a text, turned by its font; 0, 0 without a font and for texts that cannot be drawn.
CSize MeasureText(const CFont* font, const char* text, const CTextLayoutRequest& request);

/// The first baseline in a box of that height.
double GetBaseline(double boxHeight, double textHeight, double ascent, ETextVAlign align);

} // namespace Mirel::Graphics
