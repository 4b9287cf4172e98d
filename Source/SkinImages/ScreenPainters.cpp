#include "SkinImages/ScreenPainters.h"

#include <numbers>

namespace SkinImages
{

namespace
{

void FillRectangle(cairo_t* context, double x, double y, double width, double height, CRgb color)
{
    cairo_rectangle(context, x, y, width, height);
    SetColor(context, color);
    cairo_fill(context);
}

void PaintLamp(cairo_t* context, const SFrame& frame, CRgb lit)
{
    const double middle = frame.width / 2.0;
    cairo_arc(context, middle, middle, middle - 0.5, 0.0, 2.0 * std::numbers::pi);
    SetColor(context, Mix(Palette::lampOff, lit, frame.GetPosition()));
    cairo_fill_preserve(context);
    SetColor(context, Mix(Palette::border, lit, frame.GetPosition()));
    cairo_stroke(context);
}

} // namespace

void PaintHeader(cairo_t* context, const SFrame& frame)
{
    FillRectangle(context, 0.0, 0.0, frame.width, frame.height, Palette::strip);
    FillRectangle(context, 0.0, frame.height - 1.0, frame.width, 1.0, Palette::edge);
}

void PaintFooter(cairo_t* context, const SFrame& frame)
{
    FillRectangle(context, 0.0, 0.0, frame.width, frame.height, Palette::strip);
    FillRectangle(context, 0.0, 0.0, frame.width, 1.0, Palette::edge);
}

void PaintScreen(cairo_t* context, const SFrame& frame)
{
    FillRectangle(context, 0.0, 0.0, frame.width, frame.height, Palette::edge);
    FillRectangle(context, 1.0, 1.0, frame.width - 2.0, frame.height - 2.0, Palette::screen);
}

void PaintPlate(cairo_t* context, const SFrame& frame)
{
    AddRoundRectangle(context, 0.0, 0.0, frame.width, frame.height, 3.0);
    SetColor(context, Palette::screen, 0.85);
    cairo_fill(context);
}

void PaintDivider(cairo_t* context, const SFrame& frame)
{
    FillRectangle(context, 0.0, 0.0, frame.width, frame.height, Palette::edge);
}

void PaintClipLamp(cairo_t* context, const SFrame& frame)
{
    PaintLamp(context, frame, Palette::clipped);
}

void PaintMidiLamp(cairo_t* context, const SFrame& frame)
{
    PaintLamp(context, frame, Palette::message);
}

} // namespace SkinImages
