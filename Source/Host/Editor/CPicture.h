#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Host
{

/// Pixels row by row from the top: blue in the lowest byte, then green, red and alpha.
struct CPicture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool IsEmpty() const { return pixels.empty(); }
};

/// Writes a PNG file, whole or not at all. False with one line in `error`.
bool WritePicture(const CPicture& picture, const std::string& path, std::string& error);

} // namespace Host
