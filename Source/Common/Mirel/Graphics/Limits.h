#pragma once

#include <cstddef>
#include <cstdint>

namespace Mirel::Graphics
{

/// Bounds on images, since skins come from strangers. Each lies far above what honest skins need; what goes
/// beyond is refused like a file that cannot be read.
struct CLimits
{
    /// Bytes of an image file.
    static constexpr std::size_t maxImageBytes = std::size_t{64} << 20U;

    /// Pixels of one image, as its header gives them: 128 frames of a knob 360 pixels wide. A few bytes of
    /// file can promise gigabytes.
    static constexpr std::int64_t maxImagePixels = std::int64_t{1} << 24U;

    /// Pixels of all images that one resources manager loads: 256 MB.
    static constexpr std::int64_t maxSkinPixels = std::int64_t{1} << 26U;

    /// Pixels of one bitmap. Widgets that are buffered ask for bitmaps of the size that a skin gives them.
    static constexpr std::int64_t maxBitmapPixels = std::int64_t{1} << 26U;

    /// Width and height of what can be drawn into, the drawing library's own bound.
    static constexpr int maxDrawingSide = 32767;
};

} // namespace Mirel::Graphics
