#pragma once

#include "Mirel/GUI/PointMath.h"
#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Mirel/Graphics/CTextFormat.h"

namespace Mirel::GUI
{

/// What several popups and their controls have drawn in common. Skin pixels.

enum class EArrow
{
    Left,
    Right,
    Up,
    Down
};

/// A border of one pixel, inside of the rectangle.
void DrawFrame(Graphics::CDrawSurface& surface, const CRect& rect, Graphics::CColor color);

/// One line of text in the middle of the rectangle's height, with an ellipsis where it is too long.
void DrawLabel(Graphics::CDrawSurface& surface, const Graphics::CSharedFont& font, const std::string& text,
               const CRect& rect, Graphics::CColor color,
               Graphics::ETextHAlign align = Graphics::ETextHAlign::Left);

/// Lines of text, broken between words, from the top of the rectangle.
void DrawLines(Graphics::CDrawSurface& surface, const Graphics::CSharedFont& font, const std::string& text,
               const CRect& rect, Graphics::CColor color);

/// A filled triangle, 5 pixels deep and 9 across, with its box's top left at the place.
void DrawArrow(Graphics::CDrawSurface& surface, CPoint place, EArrow arrow, Graphics::CColor color);

void DrawCheckMark(Graphics::CDrawSurface& surface, const CRect& rect, Graphics::CColor color);

} // namespace Mirel::GUI
