#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CBaseParamViewer.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"
#include "Mirel/Graphics/CMultiFilmStripDrawer.h"

namespace Mirel::DataModel::GUIWidgets
{

/// What a widget that is pressed shows. Without a catalog it shows nothing and is hit all over its area: for
/// a widget laid over a picture of the skin.
struct SPushImage
{
    Graphics::CImageCatalog* catalog =
        nullptr;         ///< by state: 0 normal, 1 disabled, 2 hover, 3 focus, 4 pushed
    bool owned = false;  ///< the widget destroys the catalog in the end
    int framesCount = 1; ///< in each image, one for each stop of the parameter
    Graphics::CMultiFilmStripDrawer::EOrientation orientation =
        Graphics::CMultiFilmStripDrawer::EOrientation::Vertical;
};

/// The picture of a widget that is pressed, by the widget's state. GUI thread.
class CPushableImageWidgetGraphics : public Graphics::CMultiFilmStripDrawer
{
public:
    /// With a viewer, images of several frames show its position. Neither is owned; both must outlive the
    /// graphics.
    CPushableImageWidgetGraphics(const GUI::CLightWidget& widget_, const SPushImage& image,
                                 const Controls::CBaseParamViewer* viewer_ = nullptr);

    bool HitTest(Graphics::CPoint point) const override;

    /// Shown as state 4 while the widget is enabled.
    bool IsPushed() const { return pushed; }
    void SetPushed(bool newPushed);
    Core::IEventProvider& GetPushedChangedEventProvider() const { return pushedChanged; }

    /// Whether a step beyond the last stop goes on at the first. False at first.
    bool IsLoop() const { return loop; }
    void SetLoop(bool newLoop) { loop = newLoop; }

private:
    void UpdateState() { SetState(GetWidgetState(widget, pushed)); }
    void UpdateFrame();

    const GUI::CLightWidget& widget;
    const Controls::CBaseParamViewer* viewer;
    bool invisible;
    bool pushed = false;
    bool loop = false;
    mutable Core::CEventProvider pushedChanged; ///< Listening changes nothing of the picture.
    Core::TCommand<CPushableImageWidgetGraphics> stateChanged{this,
                                                              &CPushableImageWidgetGraphics::UpdateState};
    Core::TCommand<CPushableImageWidgetGraphics> positionChanged{this,
                                                                 &CPushableImageWidgetGraphics::UpdateFrame};
    CWidgetStateConnections stateConnections;
    CoreUtilities::CCallbackHelper positionConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
