#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ImageReaders.h"

#include <turbojpeg.h>

namespace Mirel::Graphics
{

namespace
{

/// The library's decoder; destroyed on every way out.
class CJpegReading
{
public:
    CJpegReading() : decoder(tjInitDecompress()) {}
    CJpegReading(const CJpegReading&) = delete;
    CJpegReading& operator=(const CJpegReading&) = delete;
    ~CJpegReading() { tjDestroy(decoder); }

    CReadImage Refuse() const
    {
        return {nullptr, false, std::string("is damaged: ") + tjGetErrorStr2(decoder)};
    }

    const tjhandle decoder;
};

} // namespace

bool IsJpeg(std::string_view content)
{
    return content.starts_with("\xff\xd8\xff");
}

CReadImage ReadJpeg(std::string_view content, std::int64_t maxPixels)
{
    const CJpegReading reading;
    const auto* bytes = reinterpret_cast<const unsigned char*>(content.data());
    int width = 0;
    int height = 0;
    int subsampling = 0;
    int colorSpace = 0;
    if (tjDecompressHeader3(reading.decoder, bytes, content.size(), &width, &height, &subsampling,
                            &colorSpace) != 0)
    {
        return reading.Refuse();
    }
    if (width < 1 || height < 1)
    {
        return {nullptr, false, "is damaged: it ends before the size of the image"};
    }
    CReadImage read = MakePixels(width, height, maxPixels);
    if (read.pixels == nullptr)
    {
        return read;
    }
    // What is cut off or garbled is no image, and a file of thousands of passes is there to waste time.
    constexpr int flags = TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS;
    // Bytes b, g, r, a are 0xAARRGGBB in memory; the library makes it opaque.
    if (tjDecompress2(reading.decoder, bytes, content.size(), read.pixels->GetData(), width,
                      read.pixels->GetStride(), height, TJPF_BGRA, flags) != 0)
    {
        return reading.Refuse();
    }
    return read;
}

} // namespace Mirel::Graphics
