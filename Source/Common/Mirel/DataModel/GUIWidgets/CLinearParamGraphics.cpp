#include "Mirel/DataModel/GUIWidgets/CLinearParamGraphics.h"

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using Core::CPoint;
using Core::CSize;
using Graphics::CImageCatalog;
using Graphics::CRect;

/// A missing catalog is an empty one.
CImageCatalog* Given(CImageCatalog* catalog)
{
    return catalog == nullptr ? new CImageCatalog() : catalog;
}

int Place(int room, int length, bool centered)
{
    return centered ? static_cast<int>((std::int64_t{room} - length) / 2) : 0;
}

/// Draws what of the image in its area the clip lets be seen.
void DrawPart(CImageCatalog& catalog, int state, Graphics::CDrawSurface& surface, const CRect& area,
              const CRect& clip)
{
    const CRect dst = Intersect(area, clip);
    if (!dst.IsEmpty())
    {
        catalog.Draw(state, surface, {{dst.x - area.x, dst.y - area.y}, dst.GetSize()}, dst);
    }
}

} // namespace

CLinearParamGraphics::CLinearParamGraphics(const SLinearImages& images, EFill fill_,
                                           const Controls::CBaseParamViewer& viewer_)
    : trackImages(Given(images.track), images.track == nullptr || images.owned),
      thumbImages(Given(images.thumb), images.thumb == nullptr || images.owned),
      fill(fill_),
      viewer(viewer_),
      position(viewer_.GetPosition()),
      connection(&viewer_.GetPositionChangedEventProvider(), &positionChanged)
{
    const CSize picture = trackImages->GetSize(StateNormal);
    CBaseGraphics::SetSize(picture.IsEmpty() ? thumbImages->GetSize(StateNormal) : picture);
}

void CLinearParamGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region)
{
    const CRect clip = Intersect(GetBounds(region), GetArea());
    DrawPart(*trackImages, GetTrackState(), surface, GetTrackArea(),
             fill == EFill::Whole ? clip : Intersect(clip, GetFilledArea()));
    DrawPart(*thumbImages, GetThumbState(), surface, GetThumbArea(), clip);
}

bool CLinearParamGraphics::HitTest(CPoint point) const
{
    const CRect area = GetTrackArea();
    return GetArea().Contains(point) &&
           (IsOnThumb(point) ||
            (area.Contains(point) &&
             trackImages->HitTest(GetTrackState(), point, CImageCatalog::hitThreshold, area.GetOrigin())));
}

bool CLinearParamGraphics::IsOpaque() const
{
    return fill == EFill::Whole && trackImages->IsOpaque(GetTrackState()) &&
           Intersect(GetTrackArea(), GetArea()) == GetArea();
}

void CLinearParamGraphics::SetTrack(const CLinearTrack& newTrack)
{
    if (newTrack != track)
    {
        track = newTrack;
        RaiseChanged();
    }
}

void CLinearParamGraphics::SetTrackAlignment(SAlignment alignment)
{
    if (alignment != trackAlignment)
    {
        trackAlignment = alignment;
        RaiseChanged();
    }
}

void CLinearParamGraphics::SetThumbAlignment(SAlignment alignment)
{
    if (alignment != thumbAlignment)
    {
        thumbAlignment = alignment;
        RaiseChanged();
    }
}

void CLinearParamGraphics::SetState(EWidgetState newState)
{
    if (newState != state)
    {
        state = newState;
        RaiseChanged();
    }
}

bool CLinearParamGraphics::IsOnThumb(CPoint point) const
{
    const CRect area = GetThumbArea();
    return area.Contains(point) &&
           thumbImages->HitTest(GetThumbState(), point, CImageCatalog::hitThreshold, area.GetOrigin());
}

CRect CLinearParamGraphics::GetThumbArea() const
{
    const CSize thumb = thumbImages->GetSize(GetThumbState());
    const CPoint origin =
        track.horizontal
            ? CPoint{GetPixel(), Place(GetSize().height, thumb.height, thumbAlignment.vertically)}
            : CPoint{Place(GetSize().width, thumb.width, thumbAlignment.horizontally), GetPixel()};
    return {origin, thumb};
}

int CLinearParamGraphics::GetStateIn(CImageCatalog& images) const
{
    return state == StateSelected && images.GetEntry(StateSelected) == nullptr ? StatePushed : state;
}

void CLinearParamGraphics::UpdatePosition()
{
    const int before = GetPixel();
    position = viewer.GetPosition();
    if (GetPixel() != before)
    {
        RaiseChanged();
    }
}

CRect CLinearParamGraphics::GetTrackArea() const
{
    const CSize picture = trackImages->GetSize(GetTrackState());
    return {{Place(GetSize().width, picture.width, trackAlignment.horizontally),
             Place(GetSize().height, picture.height, trackAlignment.vertically)},
            picture};
}

/// From the beginning of the track, its margin included, to the middle of the thumb.
CRect CLinearParamGraphics::GetFilledArea() const
{
    const CSize area = GetSize();
    const int pixel = GetPixel() + GetThumbLength() / 2;
    return track.horizontal ? CRect(0, 0, pixel, area.height)
                            : CRect(0, pixel, area.width, std::max(area.height - pixel, 0));
}

/// The same in all states, or the thumb would move with them.
int CLinearParamGraphics::GetThumbLength() const
{
    const CSize thumb = thumbImages->GetSize(StateNormal);
    return track.horizontal ? thumb.width : thumb.height;
}

} // namespace Mirel::DataModel::GUIWidgets
