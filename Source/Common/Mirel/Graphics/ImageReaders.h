#pragma once

#include "Mirel/Graphics/Geometry.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Mirel::Graphics
{

class CBitmapContext;

/// What a reader of one kind of image file gives: 32-bit pixels, or why there are none.
struct CReadImage
{
    std::shared_ptr<CBitmapContext> pixels;
    bool hasAlpha = false;
    std::string reason; ///< The end of a sentence about the file.
};

bool IsPng(std::string_view content);
bool IsJpeg(std::string_view content);

/// With premultiplied alpha.
CReadImage ReadPng(std::string_view content, std::int64_t maxPixels);
CReadImage ReadJpeg(std::string_view content, std::int64_t maxPixels);

/// Cleared pixels for an image whose header gives that size, 1 and more; none, with the reason, beyond
/// maxPixels.
CReadImage MakePixels(std::int64_t width, std::int64_t height, std::int64_t maxPixels);

} // namespace Mirel::Graphics
