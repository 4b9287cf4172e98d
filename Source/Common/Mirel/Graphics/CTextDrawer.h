#pragma once

#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFont.h"
#include "Mirel/Graphics/CTextFormat.h"

#include <string>

namespace Mirel::Graphics
{

/// Draws a text in its area. Without a font it draws nothing.
class CTextDrawer : public CBaseGraphics
{
public:
    CTextDrawer() = default;

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;

    /// The size of the text itself, turned by its font; how much it needs in several lines depends on the
    /// width that it is given, where 0 or less stands for any.
    CSize GetNaturalSize(int width = 0) const;

    const std::string& GetText() const { return text; }
    void SetText(const char* newText);

    CColor GetColor() const { return color; }
    void SetColor(CColor newColor);

    const CSharedFont& GetFont() const { return font; }
    void SetFont(CSharedFont newFont);

    const CTextFormat& GetFormat() const { return format; }
    void SetFormat(const CTextFormat& newFormat);

private:
    std::string text;
    CColor color;
    CSharedFont font;
    CTextFormat format;
};

} // namespace Mirel::Graphics
