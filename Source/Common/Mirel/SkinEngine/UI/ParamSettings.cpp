#include "Mirel/SkinEngine/UI/ParamSettings.h"

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/GUIWidgets/KnobSteps.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"

#include <array>
#include <functional>
#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using DataModel::Controls::CParamControl;
using Graphics::CImageCatalog;

namespace
{

/// Tells the program of right clicks. Not before the button is up again: while it is held the pointer is the
/// editor's, and no other program could open a menu under it.
class CRightClickNotice
{
public:
    CRightClickNotice(const CParamControl& control_, std::string paramId_,
                      std::function<void(const char*)> tell_)
        : control(control_),
          paramId(std::move(paramId_)),
          tell(std::move(tell_)),
          connection(&control_.GetRightClickEventProvider(), &rightClicked)
    {
    }
    CRightClickNotice(const CRightClickNotice&) = delete;
    CRightClickNotice& operator=(const CRightClickNotice&) = delete;

private:
    void OnRightClick()
    {
        const bool wasDown = std::exchange(isDown, control.IsRightDown());
        if (wasDown && !isDown)
        {
            tell(paramId.c_str());
        }
    }

    const CParamControl& control;
    std::string paramId;
    std::function<void(const char*)> tell;
    bool isDown = false; ///< It went down here, not elsewhere.
    Core::TCommand<CRightClickNotice> rightClicked{this, &CRightClickNotice::OnRightClick};
    CoreUtilities::CCallbackHelper connection;
};

} // namespace

SParamName FindGivenParam(const CNamedAttributes& attributes)
{
    for (const char* prefix : {"", "x_", "y_", "z_"})
    {
        if (const char* id = FindText(attributes, std::string(prefix) + "param_id"))
        {
            return {id, prefix};
        }
    }
    return {nullptr, ""};
}

SParamName FindParam(const CUIElement& element)
{
    const SParamName found = FindGivenParam(element.GetAttributes());
    if (found.id == nullptr)
    {
        const CUIBuild& build = element.GetBuild();
        build.Warn(build.GetElement() + ", not connected to any parameter (x, y or z)");
    }
    return found;
}

std::unique_ptr<CImageCatalog> ReadStates(CUIBuild& build, const CNamedAttributes& attributes,
                                          const std::string& name)
{
    constexpr std::array<const char*, 5> suffixes = {"", "_disabled", "_hover", "_focus", "_pushed"};
    auto catalog = std::make_unique<CImageCatalog>();
    for (std::size_t i = 0; i < suffixes.size(); ++i)
    {
        auto image = build.ReadImage(attributes, name, suffixes[i]);
        catalog->SetEntry(static_cast<int>(i),
                          image != nullptr || i == 0 ? std::move(image) : build.ReadImage(attributes, name));
    }
    return catalog;
}

std::unique_ptr<CImageCatalog> ReadSliderStates(CUIBuild& build, const CNamedAttributes& attributes,
                                                const std::string& name)
{
    if (FindText(attributes, name) == nullptr)
    {
        return nullptr;
    }
    auto catalog = ReadStates(build, attributes, name);
    if (auto selected = build.ReadImage(attributes, name, "_selected"))
    {
        catalog->SetEntry(DataModel::GUIWidgets::StateSelected, std::move(selected));
    }
    return catalog;
}

int ReadImagesCount(const CNamedAttributes& attributes, int missing)
{
    int count = missing;
    ReadNumber(attributes, "images_count", count);
    return count;
}

Graphics::CMultiFilmStripDrawer::EOrientation ReadImageOrientation(const CNamedAttributes& attributes)
{
    using EOrientation = Graphics::CMultiFilmStripDrawer::EOrientation;
    return std::string_view(GetText(attributes, "image_orientation")) == "horizontal"
               ? EOrientation::Horizontal
               : EOrientation::Vertical;
}

float ReadPixelRange(const CNamedAttributes& attributes)
{
    float pixelRange = DataModel::GUIWidgets::noPixelRange;
    ReadNumber(attributes, "pixel_range", pixelRange);
    return pixelRange;
}

void ReadControl(const CUIElement& element, const SParamName& param, CParamControl& control)
{
    int fineRatio = 1;
    if (ReadNumber(element.GetAttributes(), "fine_ratio", fineRatio))
    {
        control.SetFineRatio(fineRatio);
    }
    CUIBuild& build = element.GetBuild();
    if (const auto& tell = build.GetServices().onParamRightClick; tell && param.id != nullptr)
    {
        build.GetData().Own(std::make_unique<CRightClickNotice>(control, param.id, tell));
    }
}

} // namespace Mirel::SkinEngine
