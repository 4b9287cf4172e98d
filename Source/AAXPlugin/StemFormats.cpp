#include "AAXPlugin/StemFormats.h"

#include <array>
#include <cstddef>

namespace MirelExt::AAXPlugin
{

namespace
{

constexpr std::uint32_t NoStemFormat = 0xFF9C0000;
constexpr std::array<std::uint32_t, 8> FormatsFromMonoOn = {0x00000001, 0x00010002, 0x00020003, 0x00040004,
                                                            0x00050005, 0x00060006, 0x00070006, 0x00080007};

} // namespace

std::uint32_t StemFormatOf(int channels)
{
    const std::size_t index = static_cast<std::size_t>(channels) - 1;
    return index < FormatsFromMonoOn.size() ? FormatsFromMonoOn[index] : NoStemFormat;
}

} // namespace MirelExt::AAXPlugin
