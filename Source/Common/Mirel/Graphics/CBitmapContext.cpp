#include "Mirel/Graphics/CBitmapContext.h"

#include "Mirel/Graphics/Limits.h"

#include <algorithm>
#include <cairo.h>
#include <cstring>

namespace Mirel::Graphics
{

namespace
{

constexpr int drawingDepth = 32;

/// 5 bits as 8, so that full stays full; the upper 5 of the result are those given.
std::uint8_t Widen(std::uint8_t fiveBits)
{
    return static_cast<std::uint8_t>((fiveBits << 3) | (fiveBits >> 2));
}

} // namespace

std::shared_ptr<CBitmapContext> CBitmapContext::Create(CSize size, int depth, int scale)
{
    const std::int64_t stride = Graphics::GetStride(size.width, depth);
    if (size.IsEmpty() || stride < 1 || std::int64_t{size.width} * size.height > CLimits::maxBitmapPixels)
    {
        return nullptr;
    }
    std::shared_ptr<CBitmapContext> context(new CBitmapContext(size, depth, static_cast<int>(stride), scale));
    context->memory.reset(static_cast<std::uint8_t*>(
        std::calloc(static_cast<std::size_t>(size.height), static_cast<std::size_t>(stride))));
    context->data = context->memory.get();
    return context->data == nullptr ? nullptr : context;
}

std::shared_ptr<CBitmapContext> CBitmapContext::CreateScaled(CSize size, int depth, int scale)
{
    const auto scaled = [scale](int side) { return Core::SaturateToInt32(std::int64_t{side} * scale); };
    return Create({scaled(size.width), scaled(size.height)}, depth, scale);
}

bool CBitmapContext::CanView(cairo_surface_t* surface)
{
    return surface != nullptr && cairo_surface_get_type(surface) == CAIRO_SURFACE_TYPE_IMAGE &&
           (cairo_image_surface_get_format(surface) == CAIRO_FORMAT_ARGB32 ||
            cairo_image_surface_get_format(surface) == CAIRO_FORMAT_RGB24) &&
           cairo_image_surface_get_width(surface) > 0 && cairo_image_surface_get_height(surface) > 0 &&
           cairo_image_surface_get_data(surface) != nullptr;
}

std::shared_ptr<CBitmapContext> CBitmapContext::CreateView(cairo_surface_t* surface)
{
    if (!CanView(surface))
    {
        return nullptr;
    }
    const CSize size = {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
    double scale = 1.0;
    cairo_surface_get_device_scale(surface, &scale, &scale);
    std::shared_ptr<CBitmapContext> context(
        new CBitmapContext(size, drawingDepth, cairo_image_surface_get_stride(surface),
                           std::clamp(Core::TruncateToInt32(scale), 1, CLimits::maxDeviceScale)));
    context->data = cairo_image_surface_get_data(surface);
    context->surface = cairo_surface_reference(surface);
    return context;
}

CBitmapContext::~CBitmapContext()
{
    if (surface != nullptr)
    {
        if (memory != nullptr)
        {
            // Whoever still holds the surface must not reach the memory any more.
            cairo_surface_finish(surface);
        }
        cairo_surface_destroy(surface);
    }
}

void CBitmapContext::Clear()
{
    // Row by row: what lies between the rows of a view is not ours.
    const auto rowBytes = static_cast<std::size_t>(Graphics::GetStride(size.width, depth));
    for (int y = 0; y < size.height; ++y)
    {
        std::memset(data + std::int64_t{stride} * y, 0, rowBytes);
    }
    if (shadow != nullptr && drawings > 0)
    {
        FillShadow();
    }
}

std::unique_ptr<IPixelAccess> CBitmapContext::CreatePixelAccess()
{
    return Graphics::CreatePixelAccess(depth, {data, stride, {CPoint(), size}});
}

cairo_surface_t* CBitmapContext::BeginDrawing()
{
    if (size.width > CLimits::maxDrawingSide || size.height > CLimits::maxDrawingSide)
    {
        return nullptr;
    }
    if (HasOwnLayout())
    {
        if (drawings == 0)
        {
            FillShadow();
        }
        if (shadow == nullptr)
        {
            return nullptr;
        }
        ++drawings;
        return shadow->BeginDrawing();
    }
    if (surface == nullptr)
    {
        surface =
            cairo_image_surface_create_for_data(data, CAIRO_FORMAT_ARGB32, size.width, size.height, stride);
        cairo_surface_set_device_scale(surface, scale, scale);
    }
    cairo_surface_mark_dirty(surface);
    ++drawings;
    return surface;
}

void CBitmapContext::EndDrawing()
{
    --drawings;
    if (!HasOwnLayout())
    {
        cairo_surface_flush(surface);
        return;
    }
    shadow->EndDrawing();
    ConvertShadow();
}

cairo_surface_t* CBitmapContext::CreateSubImage(const CRect& part)
{
    if (part.IsEmpty() || Intersect(part, {CPoint(), size}) != part || part.width > CLimits::maxDrawingSide ||
        part.height > CLimits::maxDrawingSide)
    {
        return nullptr;
    }
    if (HasOwnLayout())
    {
        if (drawings == 0)
        {
            FillShadow();
        }
        return shadow == nullptr ? nullptr : shadow->CreateSubImage(part);
    }
    const bool opaque = surface != nullptr && cairo_image_surface_get_format(surface) == CAIRO_FORMAT_RGB24;
    std::uint8_t* corner = data + std::int64_t{stride} * part.y + std::int64_t{4} * part.x;
    return cairo_image_surface_create_for_data(corner, opaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32,
                                               part.width, part.height, stride);
}

void CBitmapContext::FillShadow()
{
    if (shadow == nullptr)
    {
        shadow = Create(size, drawingDepth, scale);
    }
    if (shadow == nullptr)
    {
        return;
    }
    const auto from = CreatePixelAccess();
    const auto to = shadow->CreatePixelAccess();
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            const CColor color = from->GetPixel(x, y);
            to->SetPixel(x, y, depth != 16 ? color : CColor{Widen(color.r), Widen(color.g), Widen(color.b)});
        }
    }
}

void CBitmapContext::ConvertShadow()
{
    const auto from = shadow->CreatePixelAccess();
    const auto to = CreatePixelAccess();
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            to->SetPixel(x, y, from->GetPixel(x, y));
        }
    }
}

} // namespace Mirel::Graphics
