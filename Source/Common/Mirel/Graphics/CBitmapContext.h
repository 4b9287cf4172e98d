#pragma once

#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/IPixelAccess.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace Mirel::Graphics
{

/// A pixel memory that can be drawn into: what stands behind bitmaps, their surfaces and images. It always
/// has at least one pixel. Its sizes and places are those of the memory; with a device scale, as many pixels
/// of it lie side by side in one pixel of the coordinates that are drawn with.
///
/// 32-bit memory (0xAARRGGBB, premultiplied) is drawn into directly. The other depths keep their own layout
/// and are drawn into through a 32-bit shadow: BeginDrawing fills it from the memory, EndDrawing converts it
/// back, so pixels that are set in the memory in between are lost. GUI thread.
class CBitmapContext : public std::enable_shared_from_this<CBitmapContext>
{
public:
    /// Cleared. None for a side below 1, a depth other than 8, 16, 24 or 32, too many pixels (CLimits) or no
    /// memory. The scale is from 1 to 4.
    static std::shared_ptr<CBitmapContext> Create(CSize size, int depth, int scale = 1);

    /// The same for the size that those who draw know.
    static std::shared_ptr<CBitmapContext> CreateScaled(CSize size, int depth, int scale);

    /// Whether it is an image surface of the drawing library, with pixels, and of 32 bits each.
    static bool CanView(cairo_surface_t* surface);

    /// A view on the pixels of such a surface, which it retains. None for any other.
    static std::shared_ptr<CBitmapContext> CreateView(cairo_surface_t* surface);

    CBitmapContext(const CBitmapContext&) = delete;
    CBitmapContext& operator=(const CBitmapContext&) = delete;
    ~CBitmapContext();

    CSize GetSize() const { return size; }
    int GetDepth() const { return depth; }
    int GetStride() const { return stride; }

    /// Pixels of the memory that one pixel of what is drawn takes, across and down.
    int GetScale() const { return scale; }

    /// The size that it has for those who draw: without pixels left over.
    CSize GetScaledSize() const { return {size.width / scale, size.height / scale}; }
    std::uint8_t* GetData() { return data; }
    const std::uint8_t* GetData() const { return data; }

    void Clear();
    std::unique_ptr<IPixelAccess> CreatePixelAccess();

    /// The 32-bit surface to draw on, owned by the context; none if a side is longer than can be drawn into.
    /// Every call that gave a surface is ended by one of EndDrawing.
    cairo_surface_t* BeginDrawing();
    void EndDrawing();

    /// A 32-bit surface over that part of the pixels as they are now, for the caller to destroy; nothing is
    /// copied. None if the part does not lie inside or is too long. It must not outlive the context.
    cairo_surface_t* CreateSubImage(const CRect& part);

private:
    struct CFree
    {
        void operator()(std::uint8_t* memory) const { std::free(memory); } // NOLINT: allocated by calloc
    };

    CBitmapContext(CSize size_, int depth_, int stride_, int scale_)
        : size(size_),
          depth(depth_),
          stride(stride_),
          scale(scale_)
    {
    }

    bool HasOwnLayout() const { return depth != 32; }
    void FillShadow();
    void ConvertShadow();

    CSize size;
    int depth;
    int stride;
    int scale;
    std::unique_ptr<std::uint8_t, CFree> memory; ///< Empty in a view.
    std::uint8_t* data = nullptr;
    std::shared_ptr<CBitmapContext> shadow; ///< Of depths other than 32, once needed.
    cairo_surface_t* surface = nullptr;     ///< Over the memory, once needed; the viewed one in a view.
    int drawings = 0;
};

} // namespace Mirel::Graphics
