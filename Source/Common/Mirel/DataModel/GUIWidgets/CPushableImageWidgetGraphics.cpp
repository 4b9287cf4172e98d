#include "Mirel/DataModel/GUIWidgets/CPushableImageWidgetGraphics.h"

#include "Mirel/DataModel/GUIWidgets/ParamStops.h"

namespace Mirel::DataModel::GUIWidgets
{

CPushableImageWidgetGraphics::CPushableImageWidgetGraphics(const GUI::CLightWidget& widget_,
                                                           const SPushImage& image,
                                                           const Controls::CBaseParamViewer* viewer_)
    : CMultiFilmStripDrawer(image.catalog == nullptr ? new Graphics::CImageCatalog() : image.catalog,
                            image.catalog == nullptr || image.owned,
                            image.catalog == nullptr ? 0 : image.framesCount, image.orientation),
      widget(widget_),
      viewer(viewer_),
      invisible(image.catalog == nullptr),
      stateConnections(widget_, stateChanged),
      positionConnection(viewer_ == nullptr ? nullptr : &viewer_->GetPositionChangedEventProvider(),
                         &positionChanged)
{
    UpdateState();
    UpdateFrame();
}

bool CPushableImageWidgetGraphics::HitTest(Graphics::CPoint point) const
{
    return invisible ? GetArea().Contains(point) : CMultiFilmStripDrawer::HitTest(point);
}

void CPushableImageWidgetGraphics::SetPushed(bool newPushed)
{
    if (newPushed != pushed)
    {
        pushed = newPushed;
        UpdateState();
        pushedChanged.Notify();
    }
}

void CPushableImageWidgetGraphics::UpdateFrame()
{
    if (viewer != nullptr && GetFramesCount() > 1)
    {
        SetFrame(GetStopOf(viewer->GetPosition(), GetFramesCount() - 1));
    }
}

} // namespace Mirel::DataModel::GUIWidgets
