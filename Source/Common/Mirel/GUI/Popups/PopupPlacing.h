#pragma once

#include "Mirel/GUI/PointMath.h"

namespace Mirel::GUI
{

class INativePlatform;

/// Where popups go. All measures are device pixels of the screen.

/// What a popup near that place must stay in: the usable part of the screen that the place is on, or of the
/// primary one.
CRect FindPopupArea(const INativePlatform& platform, CPoint place);

/// The rectangle moved into the area as far as it must; its top left counts if it is too large.
CRect MoveInside(const CRect& rect, const CRect& area);

/// Below and right of a place; left of it, or above, where that does not fit.
CRect PlaceMenu(CPoint place, CSize size, const CRect& area);

/// Beside the item of a menu that it belongs to: at its right, else at its left.
CRect PlaceSubMenu(const CRect& item, CSize size, const CRect& area);

/// Below the pointer, else above it, never under it.
CRect PlaceTooltip(CPoint pointer, CSize size, const CRect& area, int scale);

} // namespace Mirel::GUI
