#pragma once

#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"

#include <memory>

namespace Mirel::Graphics
{

/// A set of pixels, kept as rectangles: what is to be painted. Copies are independent. One thread at a time.
class CSimple2DRegion
{
public:
    /// Without a pixel.
    CSimple2DRegion();
    explicit CSimple2DRegion(const CRect& rect);
    CSimple2DRegion(const CSimple2DRegion& other);
    CSimple2DRegion& operator=(const CSimple2DRegion& other);
    CSimple2DRegion(CSimple2DRegion&&) noexcept = default;
    CSimple2DRegion& operator=(CSimple2DRegion&&) noexcept = default;
    ~CSimple2DRegion() = default;

    /// The smallest rectangle with all pixels in it; 0, 0, 0, 0 if there is none.
    CRect GetBounds() const;
    bool IsEmpty() const;
    bool Contains(CPoint point) const;

    /// The pixels as rectangles that do not overlap; index from 0 up to GetRectCount.
    int GetRectCount() const;
    CRect GetRect(int index) const;

    void Offset(CPoint delta);
    void Intersect(const CRect& rect);
    void Intersect(const CSimple2DRegion& other);
    void Union(const CRect& rect);
    void Union(const CSimple2DRegion& other);

private:
    struct CDestroy
    {
        void operator()(cairo_region_t* dying) const;
    };

    std::unique_ptr<cairo_region_t, CDestroy> region;
};

} // namespace Mirel::Graphics
