#include "Mirel/Graphics/IPixelAccess.h"

#include <cstring>

namespace Mirel::Graphics
{

namespace
{

struct CGrey8
{
    static constexpr int bytes = 1;

    static CColor Read(const std::uint8_t* p) { return {*p, *p, *p}; }
    static void Write(std::uint8_t* p, CColor color) { *p = color.ToGrey(); }
};

struct CRgb555
{
    static constexpr int bytes = 2;

    static CColor Read(const std::uint8_t* p)
    {
        std::uint16_t pixel = 0;
        std::memcpy(&pixel, p, sizeof(pixel));
        return {static_cast<std::uint8_t>((pixel & 0x7c00U) >> 10U),
                static_cast<std::uint8_t>((pixel & 0x3e0U) >> 5U), static_cast<std::uint8_t>(pixel & 31U)};
    }

    static void Write(std::uint8_t* p, CColor color)
    {
        const auto pixel =
            static_cast<std::uint16_t>(((color.r >> 3) << 10) | ((color.g >> 3) << 5) | (color.b >> 3));
        std::memcpy(p, &pixel, sizeof(pixel));
    }
};

struct CBgr24
{
    static constexpr int bytes = 3;

    static CColor Read(const std::uint8_t* p) { return {p[2], p[1], p[0]}; }

    static void Write(std::uint8_t* p, CColor color)
    {
        p[0] = color.b;
        p[1] = color.g;
        p[2] = color.r;
    }
};

struct CArgb32
{
    static constexpr int bytes = 4;

    static CColor Read(const std::uint8_t* p)
    {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, p, sizeof(pixel));
        return {static_cast<std::uint8_t>(pixel >> 16U), static_cast<std::uint8_t>(pixel >> 8U),
                static_cast<std::uint8_t>(pixel)};
    }

    static void Write(std::uint8_t* p, CColor color)
    {
        const std::uint32_t pixel = 0xff000000U | color.Pack();
        std::memcpy(p, &pixel, sizeof(pixel));
    }
};

template <class Format>
class TPixelAccess : public IPixelAccess
{
public:
    explicit TPixelAccess(const CPixelArea& pixels_) : pixels(pixels_) {}

    CColor GetPixel(int x, int y) const override
    {
        const std::uint8_t* pixel = Find(x, y);
        return pixel == nullptr ? CColor() : Format::Read(pixel);
    }

    void SetPixel(int x, int y, CColor color) override
    {
        if (std::uint8_t* pixel = Find(x, y))
        {
            Format::Write(pixel, color);
        }
    }

private:
    std::uint8_t* Find(int x, int y) const
    {
        const CRect& area = pixels.area;
        if (x < 0 || y < 0 || x >= area.width || y >= area.height)
        {
            return nullptr;
        }
        return pixels.data + std::int64_t{pixels.pitch} * (std::int64_t{area.y} + y) +
               Format::bytes * (std::int64_t{area.x} + x);
    }

    CPixelArea pixels;
};

} // namespace

std::unique_ptr<IPixelAccess> CreatePixelAccess(int depth, const CPixelArea& pixels)
{
    switch (depth)
    {
    case 8:
        return std::make_unique<TPixelAccess<CGrey8>>(pixels);
    case 16:
        return std::make_unique<TPixelAccess<CRgb555>>(pixels);
    case 24:
        return std::make_unique<TPixelAccess<CBgr24>>(pixels);
    case 32:
        return std::make_unique<TPixelAccess<CArgb32>>(pixels);
    default:
        return nullptr;
    }
}

std::int64_t GetStride(int width, int depth)
{
    const std::int64_t w = width;
    constexpr std::int64_t word = 32;
    switch (depth)
    {
    case 8:
    case 24:
        return (w * depth + word - 1) / word * word / 8;
    case 16:
        return 2 * (w + (w & 1));
    case 32:
        return 4 * w;
    default:
        return 0;
    }
}

} // namespace Mirel::Graphics
