#pragma once

#include "Mirel/Graphics/CImageElement.h"

#include <functional>
#include <memory>
#include <vector>

namespace Mirel::Graphics
{

/// Image elements by state: 0 normal, 1 disabled, 2 hover, 3 focus, 4 pushed; which of them there are is the
/// widget's choice. An index without an element draws nothing, is never hit, has size 0, 0 and is not opaque.
/// GUI thread.
class CImageCatalog
{
public:
    /// How bright, from 0 to 1, a mouse mask has to be where the mouse shall hit.
    static constexpr float hitThreshold = 0.2F;

    CImageCatalog() = default;
    CImageCatalog(const CImageCatalog&) = delete;
    CImageCatalog& operator=(const CImageCatalog&) = delete;
    virtual ~CImageCatalog() = default;

    void Draw(int index, CDrawSurface& surface, const CRect& srcRect, const CRect& dstRect);

    /// Whether the point, less the origin, lies on the image. Of an image with a mouse mask the mask decides:
    /// its grey value must be above the threshold (0 to 1). Otherwise the bounds do, and the row below the
    /// image counts as part of it.
    bool HitTest(int index, CPoint point, float threshold, CPoint origin);

    CSize GetSize(int index);
    bool IsOpaque(int index);

    /// Owns the element from now on; the table grows up to that index. An index below 0 destroys the element.
    void SetEntry(int index, std::unique_ptr<CImageElement> element);

    /// None for an index without one. It lives until the entry is set or cleared.
    virtual CImageElement* GetEntry(int index);

    /// Destroys the elements from that index up.
    void Clear(int from);

    /// One more than the highest index that was ever set.
    int GetCount() const { return static_cast<int>(entries.size()); }

private:
    std::vector<std::unique_ptr<CImageElement>> entries;
};

/// A catalog that makes its elements when they are first asked for, and again after Clear.
class CDynamicImageCatalog : public CImageCatalog
{
public:
    using CMake = std::function<std::unique_ptr<CImageElement>(int index)>;

    /// make_ is called for indices from 0 up to count_, and may give none.
    CDynamicImageCatalog(int count_, CMake make_);

    CImageElement* GetEntry(int index) override;

private:
    int count;
    CMake make;
};

} // namespace Mirel::Graphics
