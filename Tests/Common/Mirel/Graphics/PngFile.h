#pragma once

#include <cstdint>
#include <functional>
#include <png.h>
#include <string>
#include <vector>

namespace Tests
{

/// Writes a PNG file of straight 0xAARRGGBB pixels; without alpha the file has none.
inline bool WritePng(const std::string& path, int width, int height, bool alpha,
                     const std::function<std::uint32_t(int x, int y)>& pixelAt)
{
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            const std::uint32_t pixel = pixelAt(x, y);
            bytes.push_back(static_cast<std::uint8_t>(pixel >> 16U));
            bytes.push_back(static_cast<std::uint8_t>(pixel >> 8U));
            bytes.push_back(static_cast<std::uint8_t>(pixel));
            if (alpha)
            {
                bytes.push_back(static_cast<std::uint8_t>(pixel >> 24U));
            }
        }
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

} // namespace Tests
