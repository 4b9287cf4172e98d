#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/Graphics/CMultiFilmStripDrawer.h"
#include "Mirel/SkinEngine/UI/CUIElement.h"

#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

/// The parameter of a widget, and what stands before the names of its axis' settings.
struct SParamName
{
    const char* id; ///< Null if the element names none, which is reported.
    std::string prefix;
};

/// `param_id`, or that of an axis, such as `x_param_id`. Null, without a report, if there is none.
SParamName FindGivenParam(const Containers::CNamedAttributes& attributes);

/// The same with the report.
SParamName FindParam(const CUIElement& element);

/// The images of a widget's states, with masks: 0 plain, 1 disabled, 2 hover, 3 focus, 4 pushed. One that the
/// skin does not have is the plain one.
std::unique_ptr<Graphics::CImageCatalog>
ReadStates(CUIBuild& build, const Containers::CNamedAttributes& attributes, const std::string& name);

/// The same of a slider, with 5 for one that is held if the skin has it. Null without any image.
std::unique_ptr<Graphics::CImageCatalog>
ReadSliderStates(CUIBuild& build, const Containers::CNamedAttributes& attributes, const std::string& name);

/// Frames of a knob or meter, unless the skin says how many.
constexpr int usualImagesCount = 2;

/// `images_count`.
int ReadImagesCount(const Containers::CNamedAttributes& attributes, int missing);

/// `image_orientation`.
Graphics::CMultiFilmStripDrawer::EOrientation
ReadImageOrientation(const Containers::CNamedAttributes& attributes);

/// `pixel_range`.
float ReadPixelRange(const Containers::CNamedAttributes& attributes);

/// `fine_ratio`; and the program is told of right clicks from now on. The control is that of a widget of the
/// skin.
void ReadControl(const CUIElement& element, const SParamName& param,
                 DataModel::Controls::CParamControl& control);

} // namespace Mirel::SkinEngine
