#include "Mirel/Graphics/ImageFile.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Graphics/Premultiply.h"
#include "Mirel/Serialization/WholeFile.h"

#include <algorithm>
#include <png.h>
#include <string>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// The library's state of reading one image; freed on every way out.
class CPngReading
{
public:
    CPngReading() { image.version = PNG_IMAGE_VERSION; }
    CPngReading(const CPngReading&) = delete;
    CPngReading& operator=(const CPngReading&) = delete;
    ~CPngReading() { png_image_free(&image); }

    png_image image = {};
};

void PremultiplyAll(CBitmapContext& pixels)
{
    const CSize size = pixels.GetSize();
    for (int y = 0; y < size.height; ++y)
    {
        std::uint8_t* row = pixels.GetData() + std::int64_t{pixels.GetStride()} * y;
        for (int x = 0; x < size.width; ++x)
        {
            StorePixel(row, x, Premultiply(LoadPixel(row, x)));
        }
    }
}

} // namespace

CSharedImage ReadImageFile(const char* path, std::int64_t maxPixels)
{
    std::string content;
    CPngReading reading;
    png_image& image = reading.image;
    if (!Serialization::ReadFileWhole(path, CLimits::maxImageBytes, content) ||
        png_image_begin_read_from_memory(&image, content.data(), content.size()) == 0)
    {
        return nullptr;
    }
    if (std::int64_t{image.width} * image.height > std::min(maxPixels, CLimits::maxImagePixels))
    {
        return nullptr;
    }
    const bool hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    const CSize size = {static_cast<int>(image.width), static_cast<int>(image.height)};
    auto pixels = CBitmapContext::Create(size, 32);
    // Bytes b, g, r, a are 0xAARRGGBB in memory.
    image.format = PNG_FORMAT_BGRA;
    if (pixels == nullptr ||
        png_image_finish_read(&image, nullptr, pixels->GetData(), pixels->GetStride(), nullptr) == 0)
    {
        return nullptr;
    }
    if (hasAlpha)
    {
        PremultiplyAll(*pixels);
    }
    return std::make_shared<CImage>(std::move(pixels), hasAlpha);
}

} // namespace Mirel::Graphics
