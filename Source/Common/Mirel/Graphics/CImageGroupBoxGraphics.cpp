#include "Mirel/Graphics/CImageGroupBoxGraphics.h"

#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Mirel::Graphics
{

void CImageGroupBoxGraphics::Draw(CDrawSurface& surface, const CSimple2DRegion* region)
{
    using enum EPart;
    const auto width = [this](EPart part) { return GetPartSize(part).width; };
    const auto height = [this](EPart part) { return GetPartSize(part).height; };
    const int left = std::max({width(TopLeft), width(Left), width(BottomLeft)});
    const int top = std::max({height(TopLeft), height(Top), height(TopRight)});
    const int right = GetSize().width - std::max({width(TopRight), width(Right), width(BottomRight)});
    const int bottom = GetSize().height - std::max({height(BottomLeft), height(Bottom), height(BottomRight)});

    surface.SaveState();
    surface.ClipToRect(GetBounds(region));
    DrawPart(surface, Center, {left, top, right - left, bottom - top});
    DrawPart(surface, Top, {left, 0, right - left, height(Top)});
    DrawPart(surface, Bottom, {left, GetSize().height - height(Bottom), right - left, height(Bottom)});
    DrawPart(surface, Left, {0, top, width(Left), bottom - top});
    DrawPart(surface, Right, {GetSize().width - width(Right), top, width(Right), bottom - top});
    DrawPart(surface, TopLeft, {{0, 0}, GetPartSize(TopLeft)});
    DrawPart(surface, TopRight, {{GetSize().width - width(TopRight), 0}, GetPartSize(TopRight)});
    DrawPart(surface, BottomLeft, {{0, GetSize().height - height(BottomLeft)}, GetPartSize(BottomLeft)});
    DrawPart(surface, BottomRight,
             {{GetSize().width - width(BottomRight), GetSize().height - height(BottomRight)},
              GetPartSize(BottomRight)});
    surface.RestoreState();
}

void CImageGroupBoxGraphics::SetPart(EPart part, std::unique_ptr<CImageElement> element)
{
    parts[static_cast<std::size_t>(part)] = std::move(element);
    RaiseChanged();
}

CSize CImageGroupBoxGraphics::GetPartSize(EPart part) const
{
    const auto& element = parts[static_cast<std::size_t>(part)];
    return element == nullptr ? CSize() : element->GetSize();
}

void CImageGroupBoxGraphics::DrawPart(CDrawSurface& surface, EPart part, const CRect& place) const
{
    if (const auto& element = parts[static_cast<std::size_t>(part)])
    {
        element->Draw(surface, {CPoint(), element->GetSize()}, place);
    }
}

} // namespace Mirel::Graphics
