#include "Mirel/Graphics/CBitmapSurface.h"

#include "Mirel/Graphics/CBitmapContext.h"

#include <cairo.h>
#include <utility>

namespace Mirel::Graphics
{

std::unique_ptr<CBitmapSurface> CBitmapSurface::Create(CBitmapContext* pixels)
{
    cairo_surface_t* target = pixels == nullptr ? nullptr : pixels->BeginDrawing();
    if (target == nullptr)
    {
        return nullptr;
    }
    return std::unique_ptr<CBitmapSurface>(
        new CBitmapSurface(cairo_create(target), pixels->shared_from_this()));
}

CBitmapSurface::CBitmapSurface(cairo_t* context_, std::shared_ptr<CBitmapContext> pixels_)
    : CDrawSurface(context_),
      pixels(std::move(pixels_)),
      bitmap(pixels.get()),
      access(pixels->CreatePixelAccess())
{
}

CBitmapSurface::~CBitmapSurface()
{
    pixels->EndDrawing();
}

CPoint CBitmapSurface::GetTranslation() const
{
    cairo_matrix_t matrix = {};
    cairo_get_matrix(GetNativeContext(), &matrix);
    const int height = pixels->GetScaledSize().height;
    return {RoundToPixel(matrix.x0), height - RoundToPixel(height - matrix.y0)};
}

CSize CBitmapSurface::GetContextSize() const
{
    return pixels->GetScaledSize();
}

} // namespace Mirel::Graphics
