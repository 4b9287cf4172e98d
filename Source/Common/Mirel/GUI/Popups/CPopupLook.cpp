#include "Mirel/GUI/Popups/CPopupLook.h"

#include "Mirel/Graphics/CFontManager.h"
#include "Mirel/Graphics/CTextLayout.h"

#include <algorithm>
#include <cmath>

namespace Mirel::GUI
{

CPopupLook MakePopupLook(Graphics::CFontManager& fonts)
{
    Graphics::CFontDescription description;
    description.face = "DejaVu Sans";
    CPopupLook look;
    look.font = fonts.GetFont(description);
    description.weight = Graphics::CFontDescription::boldWeight;
    look.boldFont = fonts.GetFont(description);
    return look;
}

Core::CSize MeasureText(const Graphics::CSharedFont& font, const std::string& text, int maxWidth)
{
    Graphics::CTextLayoutRequest request;
    request.flags = Graphics::CTextFormat::multiline;
    if (maxWidth > 0)
    {
        request.width = maxWidth;
    }
    else
    {
        request.flags |= Graphics::CTextFormat::noWrap;
    }
    const auto layout = font == nullptr ? nullptr : font->LayOut(text.c_str(), request);
    return layout == nullptr ? Core::CSize() : layout->GetExtent();
}

int GetLineHeight(const Graphics::CSharedFont& font)
{
    return font == nullptr
               ? 1
               : std::max(Core::TruncateToInt32(std::ceil(font->GetAscent() + font->GetDescent())), 1);
}

} // namespace Mirel::GUI
