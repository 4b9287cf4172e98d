#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Graphics/CDIBBitmap.h"

#include <memory>

namespace Mirel::GUI
{

/// The drawing of a light widget with all below it. GUI thread only; drawing must not change the tree.
class CLightWidget::CRecursiveGraphics
{
public:
    explicit CRecursiveGraphics(CLightWidget& owner_) : owner(owner_) {}

    /// Draws what lies in the region's bounding box, or all if the region is null; a buffered widget always
    /// draws all. Coordinates are those of the widget.
    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region);

    /// Whether a point, in the coordinates of the widget, lies on something drawn by the widget or by a shown
    /// one below it.
    bool HitTest(CPoint point) const;

    bool IsBuffered() const { return buffered; }
    void SetBuffered(bool newBuffered);

    /// The kept picture is out of date.
    void MarkDirty() { bitmapDirty = true; }

private:
    static constexpr int bitmapDepth = 32;

    void DrawTree(Graphics::CDrawSurface& surface, const CRect& box);
    void DrawThroughBitmap(Graphics::CDrawSurface& surface, const CRect& box, int alpha);
    void RefreshBitmap(int fineness, const CRect& box);

    CLightWidget& owner;
    bool buffered = false;
    std::unique_ptr<Graphics::CDIBBitmap> bitmap;
    CSize bitmapSize; ///< As asked for; too large a bitmap is empty.
    bool bitmapDirty = false;
};

} // namespace Mirel::GUI
