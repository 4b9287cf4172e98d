#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CImageCatalog.h"

namespace Mirel::Graphics
{

/// Draws one frame of a strip, one strip for each state of a catalog: frame i of n begins at i * length / n,
/// whole pixels, along the strip. Its size is at first that of a frame of state 0.
class CMultiFilmStripDrawer : public CBaseGraphics
{
public:
    enum class EOrientation
    {
        Horizontal = 0, ///< Frames side by side.
        Vertical = 1,   ///< Frames on top of each other.
    };

    /// The catalog must not be null; it goes with the drawer if it is owned, else must outlive it. With fewer
    /// than one frame nothing is drawn or hit.
    CMultiFilmStripDrawer(CImageCatalog* catalog_, bool owned, int framesCount_, EOrientation orientation_);

    void Draw(CDrawSurface& surface, const CSimple2DRegion* region) override;
    bool HitTest(CPoint point) const override;
    bool IsOpaque() const override;

    int GetFramesCount() const { return framesCount; }
    CSize GetFrameSize() const;

    /// The state's index in the catalog.
    int GetState() const { return state; }
    void SetState(int newState);

    /// From 0 up to the count; any other draws nothing.
    int GetFrame() const { return frame; }
    void SetFrame(int newFrame);

private:
    bool HasFrame() const { return frame >= 0 && frame < framesCount; }
    CPoint GetFrameOrigin() const;

    Core::TOwnership<CImageCatalog> catalog;
    int framesCount;
    EOrientation orientation;
    int state = 0;
    int frame = 0;
};

} // namespace Mirel::Graphics
