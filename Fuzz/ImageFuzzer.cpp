// The input as an image file: it is read or refused, and what is read can be masked by itself and drawn.

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Mirel/Graphics/ImageMask.h"
#include "Mirel/Graphics/Premultiply.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace Mirel::Graphics;

namespace
{

/// More pixels make the fuzzer slow and show nothing new.
constexpr std::int64_t maxPixels = 65536;

void CheckPremultiplied(const CImage& image)
{
    const CBitmapContext& pixels = *image.GetContext();
    for (int y = 0; y < image.GetSize().height; ++y)
    {
        const std::uint8_t* row = pixels.GetData() + std::int64_t{pixels.GetStride()} * y;
        for (int x = 0; x < image.GetSize().width; ++x)
        {
            const std::uint32_t pixel = LoadPixel(row, x);
            const CColor color = ColorOf(pixel);
            const std::uint32_t alpha = pixel >> 24U;
            Fuzz::Require(color.r <= alpha && color.g <= alpha && color.b <= alpha);
            Fuzz::Require(image.HasAlpha() || alpha == 0xffU);
        }
    }
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const CSharedImage image = ReadImage(content, maxPixels);
    if (image == nullptr)
    {
        return 0;
    }
    const CSize extent = image->GetSize();
    Fuzz::Require(!extent.IsEmpty() && std::int64_t{extent.width} * extent.height <= maxPixels);
    CheckPremultiplied(*image);
    const CSharedImage mask = MakeMask(*image);
    Fuzz::Require(mask != nullptr && mask->GetSize() == extent);
    const CSharedImage composed = ComposeWithMask(*image, *mask);
    Fuzz::Require(composed != nullptr);
    CheckPremultiplied(*composed);
    CDIBBitmap bitmap(32, {16, 16});
    bitmap.CreateSurface()->StretchImage(*composed, {{0, 0}, extent}, {1, 1, 14, 14});
    return 0;
}
