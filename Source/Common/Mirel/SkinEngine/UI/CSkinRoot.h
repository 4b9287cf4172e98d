#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/Core/ICommand.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/SkinEngine/UI/ISkinRoot.h"

#include <memory>

namespace Mirel::SkinEngine
{

/// What the elements of one loaded skin stand in: a tree of light widgets that fills their window, or the
/// window itself. Nothing before Open. GUI thread only.
class CSkinRoot
{
public:
    /// The command runs when the light tree takes another size. Both must outlive the root.
    CSkinRoot(GUI::CCustomWidget& window_, Core::ICommand& onResized_);
    CSkinRoot(const CSkinRoot&) = delete;
    CSkinRoot& operator=(const CSkinRoot&) = delete;
    ~CSkinRoot();

    /// Makes the place of the elements, in the size that the root element states, or else of an image that
    /// gives one, or else of the content.
    SSkinPlace Open(const SSkinRootAttributes& attributes, Core::CSize imageSize);

    bool IsOpen() const { return group != nullptr; }

    /// Null before Open, and if the window itself is the root.
    const GUI::CLightWidget* GetLight() const { return light.get(); }

    /// Lays the content out from then on.
    void LayOut();

    /// The same in a size that does not follow the content any more.
    void LayOutIn(Core::CSize size);

private:
    void StateSize(const SSkinRootAttributes& attributes, Core::CSize imageSize);

    GUI::CCustomWidget& window;
    Core::ICommand& onResized;
    std::unique_ptr<GUI::CLightWidget> light;
    std::unique_ptr<GUI::CLightWidgetAdapter> adapter; ///< Shows the light tree in the window.
    Layout::CGroupLayoutCell* group = nullptr;
};

} // namespace Mirel::SkinEngine
