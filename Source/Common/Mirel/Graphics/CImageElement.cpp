#include "Mirel/Graphics/CImageElement.h"

#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/ImageMask.h"

#include <utility>

namespace Mirel::Graphics
{

CImageElement::CImageElement(CSharedImage image_, CSharedImage mouseMask_)
    : image(std::move(image_)),
      mouseMask(std::move(mouseMask_))
{
}

void CImageElement::Draw(CDrawSurface& surface, const CRect& src, const CRect& dst)
{
    if (src.GetSize() == dst.GetSize())
    {
        surface.DrawImage(GetDrawnImage(), src.GetOrigin(), dst.GetOrigin(), dst.GetSize());
    }
    else
    {
        surface.StretchImage(GetDrawnImage(), src, dst);
    }
}

const CImage& CImageElement::GetImage() const
{
    static const CImage empty;
    return image == nullptr ? empty : *image;
}

CAlphaImageElement::CAlphaImageElement(CSharedImage image_, CSharedImage mask_, CSharedImage mouseMask_)
    : CImageElement(std::move(image_), std::move(mouseMask_)),
      mask(std::move(mask_))
{
}

const CImage& CAlphaImageElement::GetDrawnImage()
{
    if (!composedIsValid)
    {
        composed = mask == nullptr ? nullptr : ComposeWithMask(GetImage(), *mask);
        composedIsValid = true;
    }
    return composed == nullptr ? GetImage() : *composed;
}

void CAlphaImageElement::SetMask(CSharedImage newMask)
{
    if (newMask != mask)
    {
        mask = std::move(newMask);
        composedIsValid = false;
    }
}

} // namespace Mirel::Graphics
