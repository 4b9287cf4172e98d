#include "SkinImages/CPicture.h"

#include <cmath>
#include <numbers>

namespace SkinImages
{

namespace
{

constexpr unsigned byteBits = 8;
constexpr unsigned byteMask = 0xFF;

double Part(CRgb color, unsigned byte)
{
    return static_cast<double>(color >> byte * byteBits & byteMask);
}

} // namespace

CPicture::CPicture(int width, int height, int scale)
    : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width * scale, height * scale)),
      context(cairo_create(surface.get()))
{
    cairo_scale(context.get(), scale, scale);
    cairo_set_line_width(context.get(), 1.0);
}

bool CPicture::Write(const std::string& path) const
{
    return cairo_surface_write_to_png(surface.get(), path.c_str()) == CAIRO_STATUS_SUCCESS;
}

void SetColor(cairo_t* context, CRgb color, double alpha)
{
    constexpr double full = byteMask;
    cairo_set_source_rgba(context, Part(color, 2) / full, Part(color, 1) / full, Part(color, 0) / full,
                          alpha);
}

CRgb Mix(CRgb from, CRgb to, double share)
{
    CRgb mixed = 0;
    for (unsigned byte = 0; byte < 3; ++byte)
    {
        const double value = Part(from, byte) * (1.0 - share) + Part(to, byte) * share;
        mixed |= static_cast<CRgb>(std::lround(value)) << byte * byteBits;
    }
    return mixed;
}

void AddRoundRectangle(cairo_t* context, double x, double y, double width, double height, double radius)
{
    constexpr double quarter = std::numbers::pi / 2.0;
    cairo_new_sub_path(context);
    cairo_arc(context, x + width - radius, y + radius, radius, -quarter, 0.0);
    cairo_arc(context, x + width - radius, y + height - radius, radius, 0.0, quarter);
    cairo_arc(context, x + radius, y + height - radius, radius, quarter, 2.0 * quarter);
    cairo_arc(context, x + radius, y + radius, radius, 2.0 * quarter, 3.0 * quarter);
    cairo_close_path(context);
}

void DrawFace(cairo_t* context, double width, double height, double radius, CRgb fill, SEdge edge)
{
    const double inset = edge.width / 2.0;
    AddRoundRectangle(context, inset, inset, width - edge.width, height - edge.width, radius);
    SetColor(context, fill);
    cairo_fill_preserve(context);
    SetColor(context, edge.color);
    cairo_set_line_width(context, edge.width);
    cairo_stroke(context);
}

} // namespace SkinImages
