#include "Mirel/GUI/CWindowPainter.h"

#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/PaintBoxes.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr double fullAlpha = 255.0;
constexpr int opaque = 255;
constexpr int bitmapDepth = 32;

} // namespace

void CWindowPainter::SetSize(CSize newDeviceSize, int newScale)
{
    if (newDeviceSize != deviceSize || newScale != scale)
    {
        deviceSize = newDeviceSize;
        scale = newScale;
        picture.SetSize(deviceSize);
        Mark({CPoint(), GetSkinSize()});
    }
}

void CWindowPainter::Mark(const CRect& rect)
{
    marked.Union(Intersect(rect, {CPoint(), GetSkinSize()}));
}

Graphics::CSimple2DRegion CWindowPainter::Paint(CWidget* content)
{
    Graphics::CSimple2DRegion painted;
    if (painting || !IsMarked() || picture.GetSize().IsEmpty())
    {
        return painted;
    }
    painting = true;
    const auto boxes = GetPaintBoxes(std::exchange(marked, Graphics::CSimple2DRegion()));
    const auto surface = picture.CreateSurface();
    surface->Scale(scale);
    for (const CRect& box : boxes)
    {
        surface->SaveState();
        surface->ClipToRect(box);
        const CRect seen = content == nullptr || !content->IsShown()
                               ? CRect()
                               : Intersect(box, {content->GetPosition(), content->GetSize()});
        if (seen != box || content->GetOpacity() < 1.0F || !content->CoversItsArea())
        {
            surface->SetFillColor(Graphics::CColor());
            surface->FillRect(box);
        }
        if (!seen.IsEmpty())
        {
            surface->Translate(content->GetPosition());
            PaintWidget(*content, *surface, Minus(seen, content->GetPosition()));
        }
        surface->RestoreState();
        painted.Union({box.x * scale, box.y * scale, box.width * scale, box.height * scale});
    }
    painting = false;
    painted.Intersect({CPoint(), deviceSize});
    return painted;
}

/// The whole pixels, the last ones cut off by the window's edge among them.
CSize CWindowPainter::GetSkinSize() const
{
    return {(deviceSize.width + scale - 1) / scale, (deviceSize.height + scale - 1) / scale};
}

void CWindowPainter::PaintWidget(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box)
{
    const int alpha = Core::TruncateToInt32(static_cast<double>(widget.GetOpacity()) * fullAlpha + 0.5);
    if (alpha == opaque)
    {
        surface.SaveState();
        surface.ClipToRect(box);
        PaintTree(widget, surface, box);
        surface.RestoreState();
    }
    else if (alpha > 0)
    {
        PaintBlended(widget, surface, box, alpha);
    }
}

void CWindowPainter::PaintTree(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box)
{
    surface.SaveState();
    widget.Draw({surface, Graphics::CSimple2DRegion(box)});
    surface.RestoreState();
    for (int i = 0; i < widget.GetChildCount(); ++i)
    {
        CWidget& child = *widget.GetChild(i);
        const CRect seen = Minus(Intersect({child.GetPosition(), child.GetSize()}, box), child.GetPosition());
        if (child.IsShown() && !seen.IsEmpty())
        {
            surface.SaveState();
            surface.Translate(child.GetPosition());
            PaintWidget(child, surface, seen);
            surface.RestoreState();
        }
    }
}

/// Only as much of a picture as the box takes is made.
void CWindowPainter::PaintBlended(CWidget& widget, Graphics::CDrawSurface& surface, const CRect& box,
                                  int alpha)
{
    const int fineness = Graphics::RoundToPixel(surface.GetScale());
    const CSize size = {box.width * fineness, box.height * fineness};
    Graphics::CDIBBitmap blended(bitmapDepth, size);
    {
        const auto inner = blended.CreateSurface();
        inner->Scale(fineness);
        inner->Translate({-box.x, -box.y});
        PaintTree(widget, *inner, box);
    }
    surface.SaveState();
    surface.Translate(box.GetOrigin());
    surface.Scale(1.0 / fineness);
    surface.DrawBitmapAlpha(blended, CPoint(), CPoint(), size, alpha);
    surface.RestoreState();
}

} // namespace Mirel::GUI
