#pragma once

#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/Geometry.h"

#include <cstdint>
#include <memory>

namespace Mirel::Graphics
{

/// Reads and writes single pixels of one area of a pixel memory, which must outlive it. A position outside of
/// the area reads as black and is not written.
class IPixelAccess
{
public:
    virtual CColor GetPixel(int x, int y) const = 0;
    virtual void SetPixel(int x, int y, CColor color) = 0;
    virtual ~IPixelAccess() = default;
};

/// A pixel memory and the area of it that is accessed: (0, 0) of the access is the area's corner.
struct CPixelArea
{
    std::uint8_t* data = nullptr;
    int pitch = 0; ///< Bytes from one row to the next.
    CRect area;
};

/// Access by the depth: 8 bits hold grey; 16 hold 5 bits a component, read as 0 to 31 and written from the
/// upper 5 of 8, so that what is read is not what was written; 24 hold bytes b, g, r; 32 hold 0xAARRGGBB,
/// written opaque. None for another depth.
std::unique_ptr<IPixelAccess> CreatePixelAccess(int depth, const CPixelArea& pixels);

/// Bytes of a row: 4 to a pixel of 32 bits, else padded to 32 bits. 0 for a depth other than 8, 16, 24, 32.
std::int64_t GetStride(int width, int depth);

} // namespace Mirel::Graphics
