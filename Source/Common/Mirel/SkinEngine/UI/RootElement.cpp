#include "Mirel/SkinEngine/UI/CUIElement.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <string_view>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using ETileMode = Graphics::CImageGraphics::ETileMode;

namespace
{

int ReadRefreshPriority(const CNamedAttributes& attributes)
{
    const std::string_view priority = GetText(attributes, "refresh_priority");
    return priority == "normal" ? 1 : priority == "high" ? 2 : 0;
}

void ReadBackground(const CUIElement& element, SSkinRootAttributes& root)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    root.backgroundColor = element.GetBackgroundColor();
    if (auto image = element.GetBuild().ReadImage(attributes, "background_image"))
    {
        root.background =
            std::make_unique<Graphics::CImageGraphics>(std::move(image), ReadTileMode(attributes));
        root.backgroundRepeats = ReadTileMode(attributes) == ETileMode::Repeat;
    }
}

SSkinRootAttributes ReadRoot(const CUIElement& element)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    SSkinRootAttributes root;
    root.name = GetText(attributes, "name");
    root.author = GetText(attributes, "author");
    root.comment = GetText(attributes, "comment");
    root.languageVersion = GetText(attributes, "language_version");
    root.showInfo = std::string_view(GetText(attributes, "show_info", "true")) == "true";
    root.showWarnings = IsNotFalse(attributes, "show_warnings");
    root.refreshPriority = ReadRefreshPriority(attributes);
    ReadNumber(attributes, "width", root.width);
    ReadNumber(attributes, "height", root.height);
    root.lightMode = IsNotFalse(attributes, "light_mode");
    root.systemWidget = IsTrue(attributes, "system_widget");
    ReadBackground(element, root);
    return root;
}

} // namespace

bool BuildSkinRoot(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    SSkinRootAttributes root = ReadRoot(element);
    const bool lightMode = root.lightMode;
    element.PlaceRoot(build.GetRoot()->OpenRoot(std::move(root)), lightMode);
    return true;
}

} // namespace Mirel::SkinEngine
