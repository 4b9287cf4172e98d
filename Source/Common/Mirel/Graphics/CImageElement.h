#pragma once

#include "Mirel/Graphics/CImage.h"

namespace Mirel::Graphics
{

class CDrawSurface;

/// One image of a widget, with its optional mouse mask: an image whose brightness says where the mouse hits.
/// Without an image it draws nothing and has size 0, 0. GUI thread.
class CImageElement
{
public:
    explicit CImageElement(CSharedImage image_, CSharedImage mouseMask_ = nullptr);
    CImageElement(const CImageElement&) = delete;
    CImageElement& operator=(const CImageElement&) = delete;
    virtual ~CImageElement() = default;

    /// What is drawn; an empty image if there is none. Valid as long as the element.
    virtual const CImage& GetDrawnImage() = 0;
    virtual bool IsOpaque() = 0;

    /// The source part scaled to the destination.
    void Draw(CDrawSurface& surface, const CRect& src, const CRect& dst);

    CSize GetSize() const { return GetImage().GetSize(); }

    /// None if there is no mask.
    const CImage* GetMouseMask() const { return mouseMask.get(); }

protected:
    const CImage& GetImage() const;

private:
    CSharedImage image;
    CSharedImage mouseMask;
};

/// Draws its image as it is.
class CNormalImageElement : public CImageElement
{
public:
    using CImageElement::CImageElement;

    const CImage& GetDrawnImage() override { return GetImage(); }
    bool IsOpaque() override { return !GetImage().IsEmpty() && !GetImage().HasAlpha(); }
};

/// Draws its image with the opacity that a mask of the same size gives; without a mask of that size, as it
/// is.
class CAlphaImageElement : public CImageElement
{
public:
    CAlphaImageElement(CSharedImage image_, CSharedImage mask_, CSharedImage mouseMask_ = nullptr);

    const CImage& GetDrawnImage() override;
    bool IsOpaque() override { return !GetDrawnImage().IsEmpty() && !GetDrawnImage().HasAlpha(); }

    /// Takes another mask; the image is composed again when it is next drawn.
    void SetMask(CSharedImage newMask);

private:
    CSharedImage mask;
    CSharedImage composed;
    bool composedIsValid = false;
};

} // namespace Mirel::Graphics
