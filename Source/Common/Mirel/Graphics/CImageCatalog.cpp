#include "Mirel/Graphics/CImageCatalog.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Mirel::Graphics
{

void CImageCatalog::Draw(int index, CDrawSurface& surface, const CRect& srcRect, const CRect& dstRect)
{
    if (CImageElement* element = GetEntry(index))
    {
        element->Draw(surface, srcRect, dstRect);
    }
}

bool CImageCatalog::HitTest(int index, CPoint point, float threshold, CPoint origin)
{
    CImageElement* element = GetEntry(index);
    if (element == nullptr)
    {
        return false;
    }
    const CImage* mask = element->GetMouseMask();
    const CSize size = mask == nullptr ? element->GetSize() : mask->GetSize();
    const CPoint p = {point.x - origin.x, point.y - origin.y};
    if (size.IsEmpty() || p.x < 0 || p.x >= size.width || p.y < 0 || p.y > size.height)
    {
        return false;
    }
    // The row below a mask reads as black.
    return mask == nullptr ||
           ToUnit(mask->CreatePixelAccess()->GetPixel(p.x, p.y).ToGrey()) > static_cast<double>(threshold);
}

CSize CImageCatalog::GetSize(int index)
{
    const CImageElement* element = GetEntry(index);
    return element == nullptr ? CSize() : element->GetSize();
}

bool CImageCatalog::IsOpaque(int index)
{
    CImageElement* element = GetEntry(index);
    return element != nullptr && element->IsOpaque();
}

void CImageCatalog::SetEntry(int index, std::unique_ptr<CImageElement> element)
{
    if (index < 0)
    {
        return;
    }
    if (index >= GetCount())
    {
        entries.resize(static_cast<std::size_t>(index) + 1);
    }
    entries[static_cast<std::size_t>(index)] = std::move(element);
}

CImageElement* CImageCatalog::GetEntry(int index)
{
    return index < 0 || index >= GetCount() ? nullptr : entries[static_cast<std::size_t>(index)].get();
}

void CImageCatalog::Clear(int from)
{
    for (int index = std::max(from, 0); index < GetCount(); ++index)
    {
        entries[static_cast<std::size_t>(index)].reset();
    }
}

CDynamicImageCatalog::CDynamicImageCatalog(int count_, CMake make_) : count(count_), make(std::move(make_)) {}

CImageElement* CDynamicImageCatalog::GetEntry(int index)
{
    if (index < 0 || index >= count)
    {
        return CImageCatalog::GetEntry(index);
    }
    if (CImageCatalog::GetEntry(index) == nullptr)
    {
        SetEntry(index, make(index));
    }
    return CImageCatalog::GetEntry(index);
}

} // namespace Mirel::Graphics
