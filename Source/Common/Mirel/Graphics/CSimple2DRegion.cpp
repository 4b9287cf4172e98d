#include "Mirel/Graphics/CSimple2DRegion.h"

#include <cairo.h>

namespace Mirel::Graphics
{

namespace
{

/// A rectangle with a negative side has no pixel; the library would take the side for a large one.
cairo_rectangle_int_t ToCairo(const CRect& rect)
{
    return rect.IsEmpty() ? cairo_rectangle_int_t{0, 0, 0, 0}
                          : cairo_rectangle_int_t{rect.x, rect.y, rect.width, rect.height};
}

CRect FromCairo(const cairo_rectangle_int_t& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

CSimple2DRegion::CSimple2DRegion() : region(cairo_region_create()) {}

CSimple2DRegion::CSimple2DRegion(const CRect& rect) : CSimple2DRegion()
{
    Union(rect);
}

CSimple2DRegion::CSimple2DRegion(const CSimple2DRegion& other) : region(cairo_region_copy(other.region.get()))
{
}

CSimple2DRegion& CSimple2DRegion::operator=(const CSimple2DRegion& other)
{
    if (this != &other)
    {
        region.reset(cairo_region_copy(other.region.get()));
    }
    return *this;
}

CRect CSimple2DRegion::GetBounds() const
{
    if (IsEmpty())
    {
        return {};
    }
    cairo_rectangle_int_t bounds = {};
    cairo_region_get_extents(region.get(), &bounds);
    return FromCairo(bounds);
}

bool CSimple2DRegion::IsEmpty() const
{
    return cairo_region_is_empty(region.get()) != 0;
}

bool CSimple2DRegion::Contains(CPoint point) const
{
    return cairo_region_contains_point(region.get(), point.x, point.y) != 0;
}

int CSimple2DRegion::GetRectCount() const
{
    return cairo_region_num_rectangles(region.get());
}

CRect CSimple2DRegion::GetRect(int index) const
{
    if (index < 0 || index >= GetRectCount())
    {
        return {};
    }
    cairo_rectangle_int_t rect = {};
    cairo_region_get_rectangle(region.get(), index, &rect);
    return FromCairo(rect);
}

void CSimple2DRegion::Offset(CPoint delta)
{
    cairo_region_translate(region.get(), delta.x, delta.y);
}

void CSimple2DRegion::Intersect(const CRect& rect)
{
    const cairo_rectangle_int_t other = ToCairo(rect);
    cairo_region_intersect_rectangle(region.get(), &other);
}

void CSimple2DRegion::Intersect(const CSimple2DRegion& other)
{
    cairo_region_intersect(region.get(), other.region.get());
}

void CSimple2DRegion::Union(const CRect& rect)
{
    const cairo_rectangle_int_t other = ToCairo(rect);
    cairo_region_union_rectangle(region.get(), &other);
}

void CSimple2DRegion::Union(const CSimple2DRegion& other)
{
    cairo_region_union(region.get(), other.region.get());
}

void CSimple2DRegion::CDestroy::operator()(cairo_region_t* dying) const
{
    cairo_region_destroy(dying);
}

} // namespace Mirel::Graphics
