#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CBaseParamViewer.h"
#include "Mirel/DataModel/GUIWidgets/CLinearTrack.h"
#include "Mirel/DataModel/GUIWidgets/WidgetState.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CImageCatalog.h"

namespace Mirel::DataModel::GUIWidgets
{

/// What a slider or linear meter shows: an image for its track and one that stands at the position. Catalogs
/// are by state (see EWidgetState); null is no image.
struct SLinearImages
{
    Graphics::CImageCatalog* track = nullptr;
    Graphics::CImageCatalog* thumb = nullptr;
    bool owned = false; ///< the widget destroys both in the end
};

/// Draws a parameter as a place on a line: a track, whole or up to the position, with a thumb at the
/// position. Its size is at first that of the track's image, without one that of the thumb's. GUI thread.
class CLinearParamGraphics : public Graphics::CBaseGraphics
{
public:
    enum class EFill
    {
        Whole,     ///< The track is seen all along.
        ToPosition ///< From its beginning up to the position only.
    };

    /// Whether an image stands in the middle of its box, or at the box's left and top.
    struct SAlignment
    {
        bool horizontally = true;
        bool vertically = true;
        bool operator==(const SAlignment&) const = default;
    };

    /// The viewer is not owned and must outlive the graphics.
    CLinearParamGraphics(const SLinearImages& images, EFill fill_, const Controls::CBaseParamViewer& viewer_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;

    /// On the track's image or the thumb: what is between and around them belongs to what lies beneath.
    bool HitTest(Core::CPoint point) const override;
    bool IsOpaque() const override;

    const CLinearTrack& GetTrack() const { return track; }
    void SetTrack(const CLinearTrack& newTrack);

    /// Of the track's image in the area.
    void SetTrackAlignment(SAlignment alignment);

    /// Of the thumb in the area, across the track; along it the position decides.
    void SetThumbAlignment(SAlignment alignment);

    /// The picture of both catalogs.
    int GetState() const { return state; }
    void SetState(EWidgetState newState);

    /// Pixels that the thumb moves from one end to the other.
    int GetTrackLength() const { return track.GetLength(GetSize(), GetThumbLength()); }

    /// The position that brings the thumb to a point.
    float GetPositionAt(Core::CPoint point) const
    {
        return track.GetPosition(GetSize(), GetThumbLength(), point);
    }

    bool IsOnThumb(Core::CPoint point) const;
    Graphics::CRect GetThumbArea() const;

    /// The state of the thumb in its catalog.
    int GetThumbState() const { return GetStateIn(*thumbImages); }

private:
    void UpdatePosition();
    int GetPixel() const { return track.GetPixel(GetSize(), GetThumbLength(), position); }
    int GetThumbLength() const;
    int GetTrackState() const { return GetStateIn(*trackImages); }
    int GetStateIn(Graphics::CImageCatalog& images) const;
    Graphics::CRect GetTrackArea() const;
    Graphics::CRect GetFilledArea() const;

    Core::TOwnership<Graphics::CImageCatalog> trackImages;
    Core::TOwnership<Graphics::CImageCatalog> thumbImages;
    EFill fill;
    const Controls::CBaseParamViewer& viewer;
    float position; ///< As drawn.
    CLinearTrack track;
    SAlignment trackAlignment;
    SAlignment thumbAlignment;
    EWidgetState state = StateNormal;
    Core::TCommand<CLinearParamGraphics> positionChanged{this, &CLinearParamGraphics::UpdatePosition};
    CoreUtilities::CCallbackHelper connection;
};

} // namespace Mirel::DataModel::GUIWidgets
