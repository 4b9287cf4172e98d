#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFont.h"

#include <string>

namespace Mirel::Graphics
{
class CDrawSurface;
class CFontManager;
} // namespace Mirel::Graphics

namespace Mirel::GUI
{

/// The fonts and colours of what the toolkit draws in windows of its own: menus, tooltips, dialogs and the
/// controls in them. GUI thread only.
struct CPopupLook
{
    Graphics::CSharedFont font; ///< None leaves all texts out.
    Graphics::CSharedFont boldFont;
    Graphics::CColor background = {0x1B, 0x1F, 0x23};
    Graphics::CColor field = {0x12, 0x15, 0x18}; ///< where text is typed, and lists
    Graphics::CColor button = {0x2A, 0x30, 0x36};
    Graphics::CColor buttonHover = {0x36, 0x3E, 0x46};
    Graphics::CColor border = {0x45, 0x4D, 0x56};
    Graphics::CColor text = {0xE6, 0xE9, 0xEC};
    Graphics::CColor disabledText = {0x7C, 0x84, 0x8C};
    Graphics::CColor accent = {0x8F, 0xC1, 0xF2};
    Graphics::CColor onAccent = {0x14, 0x16, 0x18}; ///< text on the accent colour
    Graphics::CColor error = {0xE0, 0x5A, 0x4E};
};

/// The look with the product's face in 12 pixels.
CPopupLook MakePopupLook(Graphics::CFontManager& fonts);

/// Skin pixels that a text takes, with its line breaks; broken between words too if maxWidth is above 0. 0, 0
/// without a font.
Core::CSize MeasureText(const Graphics::CSharedFont& font, const std::string& text, int maxWidth = 0);

/// The height of a line of text, at least 1.
int GetLineHeight(const Graphics::CSharedFont& font);

} // namespace Mirel::GUI
