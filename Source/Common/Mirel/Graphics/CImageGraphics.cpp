#include "Mirel/Graphics/CImageGraphics.h"

#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// Images shorter than this are repeated into a block at least this long.
constexpr int blockSide = 128;

/// From 0 up to the length, left of 0 too.
int Modulo(int value, int length)
{
    const int rest = value % length;
    return rest < 0 ? rest + length : rest;
}

using CDrawPiece = std::function<void(const CRect& src, const CRect& dst)>;

/// Covers the clip with pieces of a picture of that size whose first lies at (0, 0).
void Repeat(const CRect& clip, CSize size, const CDrawPiece& drawPiece)
{
    int srcY = Modulo(clip.y, size.height);
    for (int y = 0; y < clip.height;)
    {
        const int height = std::min(size.height - srcY, clip.height - y);
        int srcX = Modulo(clip.x, size.width);
        for (int x = 0; x < clip.width;)
        {
            const int width = std::min(size.width - srcX, clip.width - x);
            drawPiece({srcX, srcY, width, height}, {clip.x + x, clip.y + y, width, height});
            x += width;
            srcX = 0;
        }
        y += height;
        srcY = 0;
    }
}

/// Whether what was drawn before can be used again.
bool Fits(const CDIBBitmap* drawn, CSize size, const CDrawSurface& surface)
{
    return drawn != nullptr && drawn->GetSize() == size &&
           drawn->GetDeviceScale() == surface.GetDeviceScale();
}

int RoundUp(int length)
{
    return length >= blockSide ? length : (blockSide + length - 1) / length * length;
}

} // namespace

CImageGraphics::CImageGraphics(std::unique_ptr<CImageElement> element, ETileMode mode_)
    : catalog(std::make_unique<CImageCatalog>()),
      mode(mode_)
{
    catalog->SetEntry(0, std::move(element));
    CBaseGraphics::SetSize(catalog->GetSize(0));
}

void CImageGraphics::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    const CRect clip = GetBounds(region);
    if (catalog->GetSize(0).IsEmpty())
    {
        return;
    }
    switch (mode)
    {
    case ETileMode::None:
        catalog->Draw(0, surface, clip, clip);
        break;
    case ETileMode::Repeat:
        DrawRepeated(surface, Intersect(clip, surface.GetClipBox()));
        break;
    case ETileMode::Stretch:
        DrawStretched(surface, clip);
        break;
    }
}

bool CImageGraphics::HitTest(CPoint point) const
{
    const CSize imageSize = catalog->GetSize(0);
    if (mode == ETileMode::Stretch)
    {
        return true;
    }
    if (mode == ETileMode::Repeat && !imageSize.IsEmpty())
    {
        point = {Modulo(point.x, imageSize.width), Modulo(point.y, imageSize.height)};
    }
    return catalog->HitTest(0, point, CImageCatalog::hitThreshold, CPoint());
}

bool CImageGraphics::IsOpaque() const
{
    return catalog->IsOpaque(0) && (mode != ETileMode::None || IsCoveredBy(catalog->GetSize(0)));
}

void CImageGraphics::SetTileMode(ETileMode newMode)
{
    if (newMode != mode)
    {
        mode = newMode;
        RaiseChanged();
    }
}

void CImageGraphics::SetElement(std::unique_ptr<CImageElement> element)
{
    catalog->SetEntry(0, std::move(element));
    stretched.reset();
    block.reset();
    RaiseChanged();
}

void CImageGraphics::DrawRepeated(CDrawSurface& surface, const CRect& clip)
{
    const CSize imageSize = catalog->GetSize(0);
    const CSize blockSize = {RoundUp(imageSize.width), RoundUp(imageSize.height)};
    if (blockSize == imageSize)
    {
        Repeat(clip, imageSize,
               [&](const CRect& src, const CRect& dst) { catalog->Draw(0, surface, src, dst); });
        return;
    }
    if (!Fits(block.get(), blockSize, surface))
    {
        block = std::make_unique<CDIBBitmap>(32, blockSize, surface.GetDeviceScale());
        const auto target = block->CreateSurface();
        Repeat({CPoint(), blockSize}, imageSize,
               [&](const CRect& src, const CRect& dst) { catalog->Draw(0, *target, src, dst); });
    }
    Repeat(clip, blockSize,
           [&](const CRect& src, const CRect& dst)
           { surface.DrawBitmap(*block, src.GetOrigin(), dst.GetOrigin(), dst.GetSize()); });
}

void CImageGraphics::DrawStretched(CDrawSurface& surface, const CRect& clip)
{
    const CRect area = GetArea();
    if (area.IsEmpty())
    {
        return;
    }
    if (!Fits(stretched.get(), area.GetSize(), surface))
    {
        stretched = std::make_unique<CDIBBitmap>(32, area.GetSize(), surface.GetDeviceScale());
        catalog->Draw(0, *stretched->CreateSurface(), {CPoint(), catalog->GetSize(0)}, area);
    }
    if (catalog->IsOpaque(0))
    {
        surface.StretchBitmap(*stretched, clip, clip);
    }
    else
    {
        constexpr int full = 255;
        surface.DrawBitmapAlpha(*stretched, clip.GetOrigin(), clip.GetOrigin(), clip.GetSize(), full);
    }
}

} // namespace Mirel::Graphics
