#pragma once

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CBitmapSurface.h"
#include "Mirel/Graphics/CDIBBitmap.h"

#include <cstdint>
#include <cstring>
#include <memory>

namespace Tests
{

/// A 32-bit bitmap with a surface on it, and its raw pixels.
class CCanvas
{
public:
    CCanvas(int width, int height) : bitmap(32, {width, height}), surface(bitmap.CreateBitmapSurface()) {}

    Mirel::Graphics::CBitmapSurface* operator->() { return surface.get(); }
    Mirel::Graphics::CBitmapSurface& operator*() { return *surface; }
    Mirel::Graphics::CDIBBitmap& GetBitmap() { return bitmap; }

    /// 0xAARRGGBB.
    std::uint32_t At(int x, int y) const
    {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, bitmap.GetData() + 4 * (std::int64_t{bitmap.GetSize().width} * y + x), 4);
        return pixel;
    }

    int AlphaAt(int x, int y) const { return static_cast<int>(At(x, y) >> 24U); }

    /// Pixels that are not wholly transparent.
    int CountPainted() const
    {
        int painted = 0;
        for (int y = 0; y < bitmap.GetSize().height; ++y)
        {
            for (int x = 0; x < bitmap.GetSize().width; ++x)
            {
                painted += At(x, y) != 0 ? 1 : 0;
            }
        }
        return painted;
    }

private:
    Mirel::Graphics::CDIBBitmap bitmap;
    std::unique_ptr<Mirel::Graphics::CBitmapSurface> surface;
};

} // namespace Tests
