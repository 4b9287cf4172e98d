#include "Mirel/Graphics/CMultiFilmStripDrawer.h"

namespace Mirel::Graphics
{

CMultiFilmStripDrawer::CMultiFilmStripDrawer(CImageCatalog* catalog_, bool owned, int framesCount_,
                                             EOrientation orientation_)
    : catalog(catalog_, owned),
      framesCount(framesCount_),
      orientation(orientation_)
{
    CBaseGraphics::SetSize(GetFrameSize());
}

void CMultiFilmStripDrawer::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    if (!HasFrame())
    {
        return;
    }
    // An area larger than a frame does not show the next one.
    const CRect dst = Intersect(GetBounds(region), {CPoint(), GetFrameSize()});
    const CPoint origin = GetFrameOrigin();
    catalog->Draw(state, surface, {{dst.x + origin.x, dst.y + origin.y}, dst.GetSize()}, dst);
}

bool CMultiFilmStripDrawer::HitTest(CPoint point) const
{
    if (!HasFrame() || !GetArea().Contains(point))
    {
        return false;
    }
    const CPoint origin = GetFrameOrigin();
    return catalog->HitTest(state, {point.x + origin.x, point.y + origin.y}, CImageCatalog::hitThreshold,
                            CPoint());
}

bool CMultiFilmStripDrawer::IsOpaque() const
{
    return HasFrame() && catalog->IsOpaque(state) && IsCoveredBy(GetFrameSize());
}

CSize CMultiFilmStripDrawer::GetFrameSize() const
{
    const CSize strip = catalog->GetSize(state);
    if (framesCount < 1)
    {
        return {};
    }
    return orientation == EOrientation::Horizontal ? CSize{strip.width / framesCount, strip.height}
                                                   : CSize{strip.width, strip.height / framesCount};
}

void CMultiFilmStripDrawer::SetState(int newState)
{
    if (newState != state)
    {
        state = newState;
        RaiseChanged();
    }
}

void CMultiFilmStripDrawer::SetFrame(int newFrame)
{
    if (newFrame != frame)
    {
        frame = newFrame;
        RaiseChanged();
    }
}

CPoint CMultiFilmStripDrawer::GetFrameOrigin() const
{
    const CSize strip = catalog->GetSize(state);
    const auto begin = [this](int length)
    { return static_cast<int>(std::int64_t{frame} * length / framesCount); };
    return orientation == EOrientation::Horizontal ? CPoint{begin(strip.width), 0}
                                                   : CPoint{0, begin(strip.height)};
}

} // namespace Mirel::Graphics
