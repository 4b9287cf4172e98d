#include "Host/WidgetGallery/GalleryImages.h"

#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <cairo.h>
#include <functional>
#include <numbers>
#include <utility>

namespace WidgetGallery
{

namespace
{

using Mirel::Graphics::CColor;
using Mirel::Graphics::CImageCatalog;
using Mirel::Graphics::CSharedImage;
using Mirel::Graphics::CSize;
using Mirel::Graphics::ToUnit;

constexpr int statesCount = 5; ///< Normal, disabled, under the pointer, with the focus, pushed.
constexpr CColor amber = {0xFF, 0xB0, 0x3A};
constexpr CColor grey = {0x5A, 0x62, 0x6A};
constexpr double full = 2.0 * std::numbers::pi;

/// Draws one frame from its own top left.
using CDrawFrame = std::function<void(cairo_t* context, int state, double share)>;

void SetColor(cairo_t* context, CColor color, double factor = 1.0)
{
    cairo_set_source_rgb(context, ToUnit(color.r) * factor, ToUnit(color.g) * factor,
                         ToUnit(color.b) * factor);
}

double BrightnessOf(int state)
{
    constexpr double factors[statesCount] = {1.0, 0.6, 1.25, 1.1, 0.8};
    return factors[state];
}

CSharedImage MakeStrip(CSize frame, int framesCount, int state, const CDrawFrame& draw)
{
    Mirel::Graphics::CDIBBitmap bitmap(32, {frame.width, frame.height * framesCount});
    bitmap.Clear();
    const auto surface = bitmap.CreateSurface();
    cairo_t* const context = surface->GetNativeContext();
    for (int i = 0; i < framesCount; ++i)
    {
        cairo_save(context);
        cairo_translate(context, 0.0, static_cast<double>(i) * frame.height);
        draw(context, state, framesCount > 1 ? static_cast<double>(i) / (framesCount - 1) : 0.0);
        cairo_restore(context);
    }
    return bitmap.CreateImage();
}

std::unique_ptr<CImageCatalog> MakeStrips(CSize frame, int framesCount, const CDrawFrame& draw)
{
    auto catalog = std::make_unique<CImageCatalog>();
    for (int state = 0; state < statesCount; ++state)
    {
        catalog->SetEntry(state, std::make_unique<Mirel::Graphics::CNormalImageElement>(
                                     MakeStrip(frame, framesCount, state, draw)));
    }
    return catalog;
}

void DrawRounded(cairo_t* context, double x, double y, double width, double height, double radius)
{
    cairo_new_sub_path(context);
    cairo_arc(context, x + width - radius, y + radius, radius, -full / 4.0, 0.0);
    cairo_arc(context, x + width - radius, y + height - radius, radius, 0.0, full / 4.0);
    cairo_arc(context, x + radius, y + height - radius, radius, full / 4.0, full / 2.0);
    cairo_arc(context, x + radius, y + radius, radius, full / 2.0, full * 0.75);
    cairo_close_path(context);
}

void DrawKnob(cairo_t* context, double side, int state, double share)
{
    constexpr double begin = full * 0.375;
    constexpr double range = full * 0.75;
    const double middle = side / 2.0;
    const double bright = BrightnessOf(state);
    cairo_set_line_width(context, 3.0);
    SetColor(context, grey, 0.6);
    cairo_arc(context, middle, middle, middle - 3.0, begin, begin + range);
    cairo_stroke(context);
    SetColor(context, amber, state == 1 ? 0.45 : 1.0);
    cairo_arc(context, middle, middle, middle - 3.0, begin, begin + range * share);
    cairo_stroke(context);
    SetColor(context, grey, bright);
    cairo_arc(context, middle, middle, middle - 8.0, 0.0, full);
    cairo_fill(context);
    SetColor(context, {0xF4, 0xF4, 0xF4}, state == 1 ? 0.5 : 1.0);
    cairo_translate(context, middle, middle);
    cairo_rotate(context, begin + range * share);
    cairo_move_to(context, middle - 18.0, 0.0);
    cairo_line_to(context, middle - 10.0, 0.0);
    cairo_stroke(context);
}

} // namespace

CSharedImage MakeBadge()
{
    const auto draw = [](cairo_t* context, int /*state*/, double /*share*/)
    {
        SetColor(context, {0x4E, 0x9B, 0x9B});
        cairo_arc(context, 20.0, 20.0, 18.0, 0.0, full);
        cairo_fill(context);
        SetColor(context, amber);
        cairo_set_line_width(context, 3.0);
        cairo_move_to(context, 6.0, 24.0);
        cairo_curve_to(context, 16.0, -8.0, 24.0, 48.0, 34.0, 16.0);
        cairo_stroke(context);
    };
    return MakeStrip({40, 40}, 1, 0, draw);
}

std::unique_ptr<CImageCatalog> MakeKnobStrips(int side, int framesCount)
{
    const auto draw = [side](cairo_t* context, int state, double share)
    { DrawKnob(context, side, state, share); };
    return MakeStrips({side, side}, framesCount, draw);
}

std::unique_ptr<CImageCatalog> MakeMeterStrips(CSize frame, int framesCount)
{
    const auto draw = [frame, framesCount](cairo_t* context, int /*state*/, double share)
    {
        const int lamps = framesCount - 1;
        const double pitch = static_cast<double>(frame.height) / lamps;
        for (int i = 0; i < lamps; ++i)
        {
            const bool isLit = share * lamps > i + 0.5;
            SetColor(context, i + 2 >= lamps ? CColor{0xE0, 0x5A, 0x4E} : CColor{0x5B, 0xC0, 0x6A},
                     isLit ? 1.0 : 0.25);
            cairo_rectangle(context, 1.0, frame.height - (i + 1) * pitch + 1.0, frame.width - 2.0,
                            pitch - 2.0);
            cairo_fill(context);
        }
    };
    return MakeStrips(frame, framesCount, draw);
}

std::unique_ptr<CImageCatalog> MakeButtonStrips(CSize frame, int framesCount)
{
    const auto draw = [frame](cairo_t* context, int state, double share)
    {
        SetColor(context, grey, 0.7 * BrightnessOf(state));
        DrawRounded(context, 1.0, 1.0, frame.width - 2.0, frame.height - 2.0, 5.0);
        cairo_fill(context);
        SetColor(context, amber, (0.25 + 0.75 * share) * (state == 1 ? 0.5 : 1.0));
        DrawRounded(context, 8.0, frame.height / 2.0 - 3.0, frame.width - 16.0, 6.0, 3.0);
        cairo_fill(context);
    };
    return MakeStrips(frame, framesCount, draw);
}

std::unique_ptr<CImageCatalog> MakeTrack(CSize size, bool isLit)
{
    const auto draw = [size, isLit](cairo_t* context, int state, double /*share*/)
    {
        SetColor(context, isLit ? amber : grey, BrightnessOf(state) * (isLit ? 1.0 : 0.6));
        DrawRounded(context, 0.0, 0.0, size.width, size.height, std::min(size.width, size.height) / 2.0);
        cairo_fill(context);
    };
    return MakeStrips(size, 1, draw);
}

std::unique_ptr<CImageCatalog> MakeThumb(CSize size)
{
    const auto draw = [size](cairo_t* context, int state, double /*share*/)
    {
        SetColor(context, {0xB8, 0xC0, 0xC8}, BrightnessOf(state) * 0.8);
        DrawRounded(context, 0.0, 0.0, size.width, size.height, 4.0);
        cairo_fill(context);
        SetColor(context, {0x1B, 0x1F, 0x23});
        const bool isWide = size.width > size.height;
        cairo_rectangle(context, isWide ? size.width / 2.0 - 1.0 : 3.0,
                        isWide ? 3.0 : size.height / 2.0 - 1.0, isWide ? 2.0 : size.width - 6.0,
                        isWide ? size.height - 6.0 : 2.0);
        cairo_fill(context);
    };
    return MakeStrips(size, 1, draw);
}

} // namespace WidgetGallery
