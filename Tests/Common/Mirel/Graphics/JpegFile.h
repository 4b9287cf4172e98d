#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <turbojpeg.h>
#include <vector>

namespace Tests
{

/// The content of a JPEG file of 0xRRGGBB pixels in the best quality.
inline std::string MakeJpeg(int width, int height, const std::function<std::uint32_t(int x, int y)>& pixelAt,
                            int flags = 0)
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
        }
    }
    constexpr int best = 100;
    const tjhandle encoder = tjInitCompress();
    unsigned char* file = nullptr;
    unsigned long size = 0;
    tjCompress2(encoder, bytes.data(), width, 0, height, TJPF_RGB, &file, &size, TJSAMP_444, best, flags);
    std::string content(reinterpret_cast<const char*>(file), size);
    tjFree(file);
    tjDestroy(encoder);
    return content;
}

} // namespace Tests
