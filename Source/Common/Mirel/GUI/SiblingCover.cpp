#include "Mirel/GUI/SiblingCover.h"

#include <algorithm>

namespace Mirel::GUI
{

namespace
{

/// A span of one axis; wide enough for any sum.
struct CSpan
{
    std::int64_t from;
    std::int64_t to;

    bool Covers(const CSpan& other) const { return from <= other.from && to >= other.to; }

    CSpan Without(const CSpan& cover) const
    {
        CSpan left = *this;
        if (cover.from <= from && cover.to > from)
        {
            left.from = std::min(cover.to, to);
        }
        if (cover.to >= to && cover.from < to)
        {
            left.to = std::max(cover.from, left.from);
        }
        return left;
    }
};

} // namespace

Graphics::CRect WithoutCover(const Graphics::CRect& rect, const Graphics::CRect& cover)
{
    const auto span = [](int from, int length) { return CSpan{from, std::int64_t{from} + length}; };
    CSpan x = span(rect.x, rect.width);
    CSpan y = span(rect.y, rect.height);
    const CSpan coverX = span(cover.x, cover.width);
    const CSpan coverY = span(cover.y, cover.height);
    if (cover.IsEmpty())
    {
        return rect;
    }
    if (coverX.Covers(x))
    {
        y = y.Without(coverY);
    }
    else if (coverY.Covers(y))
    {
        x = x.Without(coverX);
    }
    return {static_cast<int>(x.from), static_cast<int>(y.from), static_cast<int>(x.to - x.from),
            static_cast<int>(y.to - y.from)};
}

} // namespace Mirel::GUI
