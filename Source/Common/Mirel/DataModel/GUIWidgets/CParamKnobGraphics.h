#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CBaseParamViewer.h"
#include "Mirel/Graphics/CMultiFilmStripDrawer.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

/// Shows the position of a parameter as a frame of a film strip: for knobs and meters. Only another frame is
/// a change. GUI thread.
class CParamKnobGraphics : public Graphics::CMultiFilmStripDrawer
{
public:
    /// The viewer is not owned and must outlive the graphics; the rest as of CMultiFilmStripDrawer.
    CParamKnobGraphics(Graphics::CImageCatalog* catalog_, bool owned, int framesCount_,
                       EOrientation orientation_, const Controls::CBaseParamViewer& viewer_)
        : CMultiFilmStripDrawer(catalog_, owned, framesCount_, orientation_),
          viewer(viewer_),
          connection(&viewer_.GetPositionChangedEventProvider(), &positionChanged)
    {
        UpdateFrame();
    }

    /// The frame of a position from 0 to 1.
    static int GetFrameOf(float position, int framesCount)
    {
        return Graphics::RoundToPixel(static_cast<double>(position * static_cast<float>(framesCount - 1)));
    }

private:
    void UpdateFrame() { SetFrame(GetFrameOf(viewer.GetPosition(), std::max(GetFramesCount(), 1))); }

    const Controls::CBaseParamViewer& viewer;
    Core::TCommand<CParamKnobGraphics> positionChanged{this, &CParamKnobGraphics::UpdateFrame};
    CoreUtilities::CCallbackHelper connection;
};

} // namespace Mirel::DataModel::GUIWidgets
