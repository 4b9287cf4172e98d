#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/IGraphics.h"
#include "Mirel/Layout/CGroupLayoutCell.h"

#include <memory>
#include <optional>
#include <string>

namespace Mirel::SkinEngine
{

/// What the root element of a skin says.
struct SSkinRootAttributes
{
    static constexpr int sizeOfContent = -1;

    std::string name;
    std::string author;
    std::string comment;
    std::string languageVersion;
    bool showInfo = true;
    bool showWarnings = true;
    int refreshPriority = 0; ///< 1 normal, 2 high, 0 none.

    std::unique_ptr<Graphics::IGraphics> background; ///< An image; null for none.
    bool backgroundRepeats = false;                  ///< It has no say in the size of the skin then.
    std::optional<Graphics::CColor> backgroundColor;

    /// Pixels; sizeOfContent for an axis that is not fixed.
    int width = sizeOfContent;
    int height = sizeOfContent;

    bool lightMode = true;
    bool systemWidget = false; ///< The root is native-hosted even so.
};

/// Where elements are built into. The group is the area of the light widget if there is one, else of the
/// native widget. Nothing is owned; all must outlive what is built.
struct SSkinPlace
{
    GUI::CLightWidget* light = nullptr; ///< Null where each widget gets a host of its own.
    GUI::CWidget* native = nullptr;     ///< The parent of such hosts.
    Layout::CGroupLayoutCell* group = nullptr;
};

/// The window of a skin, as far as the reader of the skin knows it. GUI thread only.
class ISkinRoot
{
public:
    /// At the start of the root element: takes what it says and makes the place that the elements go to. A
    /// place without a group ends the skin.
    virtual SSkinPlace OpenRoot(SSkinRootAttributes attributes) = 0;

    virtual ~ISkinRoot() = default;
};

} // namespace Mirel::SkinEngine
