#pragma once

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CImage.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Tests
{

/// The pixel of a picture at that place, distinct within 255 rows and columns.
inline Mirel::Graphics::CColor MarkAt(int x, int y)
{
    return {static_cast<std::uint8_t>(x + 1), static_cast<std::uint8_t>(y + 1), 128};
}

inline std::uint32_t MarkedPixel(int x, int y)
{
    return 0xff000000U | MarkAt(x, y).Pack();
}

/// Opaque, each pixel telling where it was.
inline Mirel::Graphics::CSharedImage MakePicture(Mirel::Graphics::CSize size, bool hasAlpha = false)
{
    auto pixels = Mirel::Graphics::CBitmapContext::Create(size, 32);
    const auto access = pixels->CreatePixelAccess();
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            access->SetPixel(x, y, MarkAt(x, y));
        }
    }
    return std::make_shared<Mirel::Graphics::CImage>(std::move(pixels), hasAlpha);
}

/// A mask of those grey values, row by row.
inline Mirel::Graphics::CSharedImage MakeGrey(Mirel::Graphics::CSize size, const std::vector<int>& greys)
{
    auto pixels = Mirel::Graphics::CBitmapContext::Create(size, 8);
    const auto access = pixels->CreatePixelAccess();
    for (std::size_t i = 0; i < greys.size(); ++i)
    {
        const auto v = static_cast<std::uint8_t>(greys[i]);
        const auto place = static_cast<int>(i);
        access->SetPixel(place % size.width, place / size.width, {v, v, v});
    }
    return std::make_shared<Mirel::Graphics::CImage>(std::move(pixels), false);
}

} // namespace Tests
