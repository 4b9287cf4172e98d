#pragma once

#include <cstddef>
#include <cstdint>

namespace Mirel::Graphics
{

/// Bounds on images, fonts and texts, since skins come from strangers. Each lies far above what honest skins
/// need; what goes beyond is refused like a file that cannot be read.
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

    /// Bytes of a font file: a face with all the characters of China has some twenty million.
    static constexpr std::uintmax_t maxFontBytes = std::uintmax_t{64} << 20U;

    /// Font files that one manager loads for its skin.
    static constexpr int maxLoadedFonts = 64;

    /// Fonts that one manager makes: each keeps pictures of its glyphs. Whoever asks for more gets the first.
    static constexpr std::size_t maxFonts = 256;

    /// Pixels. Pictures of glyphs grow with the square of the height; those of 400 are as high as an editor.
    static constexpr int maxFontHeight = 400;

    /// Bytes of a text that are drawn: several pages. A megabyte in one line takes the library a second, and
    /// a hundred megabytes of memory.
    static constexpr std::size_t maxTextBytes = 8192;
};

} // namespace Mirel::Graphics
