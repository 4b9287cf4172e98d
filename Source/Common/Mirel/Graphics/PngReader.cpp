#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ImageReaders.h"
#include "Mirel/Graphics/Premultiply.h"

#include <png.h>

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

    CReadImage Refuse() const { return {nullptr, false, std::string("is damaged: ") + image.message}; }

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

bool IsPng(std::string_view content)
{
    return content.starts_with("\x89PNG\r\n\x1a\n");
}

CReadImage ReadPng(std::string_view content, std::int64_t maxPixels)
{
    CPngReading reading;
    png_image& image = reading.image;
    if (png_image_begin_read_from_memory(&image, content.data(), content.size()) == 0)
    {
        return reading.Refuse();
    }
    CReadImage read = MakePixels(image.width, image.height, maxPixels);
    if (read.pixels == nullptr)
    {
        return read;
    }
    read.hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    // Bytes b, g, r, a are 0xAARRGGBB in memory.
    image.format = PNG_FORMAT_BGRA;
    if (png_image_finish_read(&image, nullptr, read.pixels->GetData(), read.pixels->GetStride(), nullptr) ==
        0)
    {
        return reading.Refuse();
    }
    if (read.hasAlpha)
    {
        PremultiplyAll(*read.pixels);
    }
    return read;
}

} // namespace Mirel::Graphics
