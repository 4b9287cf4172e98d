#pragma once

#include "Mirel/GUI/PointMath.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

namespace Mirel::GUI
{

class CWidget;

/// The picture of a window: what is marked, and the painting of it. Marks are skin pixels, the picture is
/// device pixels. GUI thread only.
class CWindowPainter
{
public:
    /// Marks all of it if either changed. Pixels without a widget are black.
    void SetSize(CSize newDeviceSize, int newScale);

    void Mark(const CRect& rect);
    bool IsMarked() const { return !marked.IsEmpty(); }

    /// Paints what is marked and takes the marks away. The result is what was painted, in device pixels.
    Graphics::CSimple2DRegion Paint(CWidget* content);

    const Graphics::CBitmap& GetPicture() const { return picture; }

private:
    CSize GetSkinSize() const;
    static void PaintWidget(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box);
    static void PaintTree(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box);
    static void PaintBlended(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box, int alpha);

    Graphics::CDIBBitmap picture = Graphics::CDIBBitmap(32);
    CSize deviceSize;
    int scale = 1;
    Graphics::CSimple2DRegion marked;
    bool painting = false;
};

} // namespace Mirel::GUI
