#include "Mirel/GUI/CRecursiveGraphics.h"

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <algorithm>
#include <cmath>

namespace Mirel::GUI
{

namespace
{

constexpr double fullAlpha = 255.0;
constexpr int opaque = 255;

/// Device pixels per pixel of the surface, in whole steps: a kept picture is as fine as the screen.
int GetFineness(const Graphics::CDrawSurface& surface)
{
    constexpr double finest = 4.0;
    return static_cast<int>(std::ceil(std::clamp(surface.GetScale(), 1.0, finest)));
}

CSize Times(CSize size, int factor)
{
    return {Core::SaturateToInt32(std::int64_t{size.width} * factor),
            Core::SaturateToInt32(std::int64_t{size.height} * factor)};
}

} // namespace

void CLightWidget::CRecursiveGraphics::Draw(Graphics::CDrawSurface& surface,
                                            const Graphics::CSimple2DRegion* region)
{
    const bool takesRegion = region != nullptr && !buffered;
    const CRect box = takesRegion ? region->GetBounds() : owner.GetArea();
    const int alpha = Core::TruncateToInt32(static_cast<double>(owner.opacity) * fullAlpha + 0.5);
    if (box.IsEmpty() || alpha == 0)
    {
        return;
    }
    surface.SaveState();
    surface.ClipToRect(box);
    if (!buffered && alpha == opaque)
    {
        bitmap.reset();
        DrawTree(surface, box);
    }
    else
    {
        DrawThroughBitmap(surface, Intersect(box, owner.GetArea()), alpha);
    }
    surface.RestoreState();
}

bool CLightWidget::CRecursiveGraphics::HitTest(CPoint point) const
{
    return owner.graphics->HitTest(point) ||
           std::any_of(owner.children.begin(), owner.children.end(),
                       [point](const CLightWidget* child)
                       { return child->shown && child->recursive->HitTest(Minus(point, child->position)); });
}

void CLightWidget::CRecursiveGraphics::SetBuffered(bool newBuffered)
{
    if (newBuffered != buffered)
    {
        buffered = newBuffered;
        bitmap.reset();
    }
}

void CLightWidget::CRecursiveGraphics::DrawTree(Graphics::CDrawSurface& surface, const CRect& box)
{
    const Graphics::CSimple2DRegion region(box);
    owner.graphics->Draw(surface, &region);
    for (CLightWidget* child : owner.children)
    {
        if (!child->shown)
        {
            continue;
        }
        const CPoint offset = child->position;
        const CRect seen = Minus(Intersect(child->GetFrame(), box), offset);
        if (!seen.IsEmpty())
        {
            const Graphics::CSimple2DRegion childRegion(seen);
            surface.Translate(offset);
            child->recursive->Draw(surface, &childRegion);
            surface.Translate({-offset.x, -offset.y});
        }
    }
}

/// The bitmap has the pixels of the screen, so the surface is scaled down for it.
void CLightWidget::CRecursiveGraphics::DrawThroughBitmap(Graphics::CDrawSurface& surface, const CRect& box,
                                                         int alpha)
{
    const int fineness = GetFineness(surface);
    RefreshBitmap(fineness, box);
    if (bitmap->GetSize().IsEmpty())
    {
        return;
    }
    const CRect part = {box.x * fineness, box.y * fineness, box.width * fineness, box.height * fineness};
    surface.Scale(1.0 / fineness);
    if (alpha == opaque)
    {
        surface.DrawBitmap(*bitmap, part.GetOrigin(), part.GetOrigin(), part.GetSize());
    }
    else
    {
        surface.DrawBitmapAlpha(*bitmap, part.GetOrigin(), part.GetOrigin(), part.GetSize(), alpha);
    }
}

void CLightWidget::CRecursiveGraphics::RefreshBitmap(int fineness, const CRect& box)
{
    const CSize size = Times(owner.GetSize(), fineness);
    if (bitmap == nullptr || bitmapSize != size)
    {
        bitmap = std::make_unique<Graphics::CDIBBitmap>(bitmapDepth, size);
        bitmapSize = size;
        bitmapDirty = true;
    }
    if (bitmapDirty || !buffered)
    {
        bitmap->Clear();
        const auto surface = bitmap->CreateSurface();
        surface->Scale(fineness);
        DrawTree(*surface, box);
        bitmapDirty = false;
    }
}

} // namespace Mirel::GUI
