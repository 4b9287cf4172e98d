#include "Mirel/Graphics/ImageMask.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Premultiply.h"

#include <cstring>

namespace Mirel::Graphics
{

namespace
{

/// Reads straight colours, whatever the depth.
class CStraightColors
{
public:
    explicit CStraightColors(const CImage& image)
        : pixels(*image.GetContext()),
          access(image.CreatePixelAccess())
    {
    }

    CColor At(int x, int y) const
    {
        if (pixels.GetDepth() != 32)
        {
            return access->GetPixel(x, y);
        }
        return Straighten(LoadPixel(pixels.GetData() + std::int64_t{pixels.GetStride()} * y, x));
    }

private:
    const CBitmapContext& pixels;
    std::unique_ptr<const IPixelAccess> access;
};

/// Of the memory.
CSize GetPixels(const CImage& image)
{
    return image.IsEmpty() ? CSize() : image.GetContext()->GetSize();
}

int GetScale(const CImage& image)
{
    return image.IsEmpty() ? 1 : image.GetContext()->GetScale();
}

} // namespace

CSharedImage MakeMask(const CImage& image)
{
    const CSize size = GetPixels(image);
    auto mask = CBitmapContext::Create(size, 8, GetScale(image));
    if (mask == nullptr)
    {
        return nullptr;
    }
    const CStraightColors from(image);
    const auto to = mask->CreatePixelAccess();
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            to->SetPixel(x, y, from.At(x, y));
        }
    }
    return std::make_shared<CImage>(std::move(mask), false);
}

CSharedImage ComposeWithMask(const CImage& colors, const CImage& mask)
{
    const CSize size = GetPixels(colors);
    const bool fits = GetPixels(mask) == size && GetScale(mask) == GetScale(colors);
    auto composed = fits ? CBitmapContext::Create(size, 32, GetScale(colors)) : nullptr;
    if (composed == nullptr)
    {
        return nullptr;
    }
    const CStraightColors color(colors);
    const CStraightColors coverage(mask);
    for (int y = 0; y < size.height; ++y)
    {
        std::uint8_t* row = composed->GetData() + std::int64_t{composed->GetStride()} * y;
        for (int x = 0; x < size.width; ++x)
        {
            StorePixel(row, x, Premultiply(color.At(x, y), coverage.At(x, y).ToGrey()));
        }
    }
    return std::make_shared<CImage>(std::move(composed), true);
}

CSharedImage MakeScaled(const CImage& image, int scale)
{
    const CSize size = GetPixels(image);
    auto scaled =
        image.IsEmpty() ? nullptr : CBitmapContext::Create(size, image.GetContext()->GetDepth(), scale);
    if (scaled == nullptr)
    {
        return nullptr;
    }
    std::memcpy(scaled->GetData(), image.GetContext()->GetData(),
                static_cast<std::size_t>(scaled->GetStride()) * static_cast<std::size_t>(size.height));
    return std::make_shared<CImage>(std::move(scaled), image.HasAlpha());
}

} // namespace Mirel::Graphics
