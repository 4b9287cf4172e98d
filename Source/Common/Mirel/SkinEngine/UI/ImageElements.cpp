#include "Mirel/GUI/CBitmapLightWidget.h"
#include "Mirel/SkinEngine/UI/CGUIImageGroupBox.h"
#include "Mirel/SkinEngine/UI/CUIElement.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <array>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using Graphics::CImageGroupBoxGraphics;

namespace
{

/// In the order of CImageGroupBoxGraphics::EPart.
constexpr std::array<const char*, 9> boxParts = {"_top_left",    "_top",    "_top_right",
                                                 "_left",        "_center", "_right",
                                                 "_bottom_left", "_bottom", "_bottom_right"};

/// Without an image an element still has a place; nothing is drawn in it.
std::unique_ptr<Graphics::CImageElement> ReadImageOrNothing(CUIBuild& build,
                                                            const CNamedAttributes& attributes)
{
    auto image = build.ReadImage(attributes, "image");
    return image != nullptr ? std::move(image) : std::make_unique<Graphics::CNormalImageElement>(nullptr);
}

} // namespace

bool BuildImage(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    auto& widget = element.Make<GUI::CBitmapLightWidget>(nullptr, ReadImageOrNothing(build, attributes),
                                                         ReadTileMode(attributes));
    element.ReadSize(widget);
    return element.Place(widget, CUIElement::EInput::None);
}

bool BuildImageGroupBox(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    auto& widget = element.Make<CGUIImageGroupBox>();
    for (std::size_t i = 0; i < boxParts.size(); ++i)
    {
        widget.GetBoxGraphics().SetPart(static_cast<CImageGroupBoxGraphics::EPart>(i),
                                        build.ReadImage(attributes, "image", boxParts[i]));
    }
    return element.PlaceBox(widget);
}

} // namespace Mirel::SkinEngine
