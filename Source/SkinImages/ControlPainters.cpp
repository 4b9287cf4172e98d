#include "SkinImages/ControlPainters.h"

#include <cmath>
#include <numbers>

namespace SkinImages
{

namespace
{

constexpr double corner = 3.5;

CRgb FaceOf(EState state)
{
    switch (state)
    {
    case EState::Disabled:
        return Palette::faceDisabled;
    case EState::Hover:
        return Palette::faceHover;
    case EState::Pushed:
    case EState::Selected:
        return Palette::facePushed;
    default:
        return Palette::face;
    }
}

/// The focus is as plain on a control that is on, or in colour, as on any other.
constexpr SEdge focusEdge = {Palette::focus, 2.0};

SEdge EdgeOf(EState state)
{
    switch (state)
    {
    case EState::Disabled:
        return {Palette::borderDisabled};
    case EState::Hover:
    case EState::Pushed:
    case EState::Selected:
        return {Palette::borderHover};
    case EState::Focus:
        return focusEdge;
    default:
        return {Palette::border};
    }
}

CRgb InkOf(EState state)
{
    switch (state)
    {
    case EState::Disabled:
        return Palette::inkDisabled;
    case EState::Hover:
    case EState::Pushed:
    case EState::Selected:
        return Palette::inkBright;
    default:
        return Palette::ink;
    }
}

/// What a control shows of its value.
CRgb ValueColor(CRgb color, EState state)
{
    return state == EState::Disabled ? Palette::inkDisabled : color;
}

bool IsLit(EState state)
{
    return state == EState::Hover || state == EState::Pushed || state == EState::Selected;
}

} // namespace

void PaintButton(cairo_t* context, const SFrame& frame)
{
    DrawFace(context, frame.width, frame.height, corner, FaceOf(frame.state), EdgeOf(frame.state));
}

void PaintFieldButton(cairo_t* context, const SFrame& frame)
{
    const bool isAtRest = frame.state == EState::Normal || frame.state == EState::Focus;
    const SEdge edge = frame.state == EState::Normal ? SEdge{Palette::edge} : EdgeOf(frame.state);
    DrawFace(context, frame.width, frame.height, corner, isAtRest ? Palette::field : FaceOf(frame.state),
             edge);
}

void PaintChoice(cairo_t* context, const SFrame& frame)
{
    constexpr double arrowRight = 9.0;
    constexpr double arrowWidth = 8.0;
    constexpr double arrowHeight = 5.0;
    PaintButton(context, frame);
    const double left = frame.width - arrowRight - arrowWidth;
    const double top = std::floor((frame.height - arrowHeight) / 2.0);
    cairo_move_to(context, left, top);
    cairo_line_to(context, left + arrowWidth, top);
    cairo_line_to(context, left + arrowWidth / 2.0, top + arrowHeight);
    cairo_close_path(context);
    SetColor(context, InkOf(frame.state));
    cairo_fill(context);
}

void PaintSwitch(cairo_t* context, const SFrame& frame)
{
    constexpr double inset = 4.0;
    const bool isOn = frame.index > 0;
    const CRgb track =
        isOn ? Mix(FaceOf(frame.state), ValueColor(Palette::on, frame.state), 0.45) : FaceOf(frame.state);
    const SEdge edge = isOn && frame.state != EState::Focus ? SEdge{ValueColor(Palette::on, frame.state)}
                                                            : EdgeOf(frame.state);
    DrawFace(context, frame.width, frame.height, frame.height / 2.0 - 1.0, track, edge);
    const double radius = frame.height / 2.0 - inset;
    const double x = isOn ? frame.width - inset - radius : inset + radius;
    cairo_arc(context, x, frame.height / 2.0, radius, 0.0, 2.0 * std::numbers::pi);
    SetColor(context, InkOf(frame.state));
    cairo_fill(context);
}

void PaintDirection(cairo_t* context, const SFrame& frame)
{
    constexpr double inset = 12.0;
    constexpr double low = 19.0;
    constexpr double high = 7.0;
    constexpr double line = 2.0;
    PaintButton(context, frame);
    const double begin = frame.index == 0 ? low : high;
    const double end = frame.index == 0 ? high : low;
    const double middle = frame.width / 2.0;
    cairo_set_line_width(context, line);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_move_to(context, inset, begin);
    cairo_line_to(context, middle - 3.0, begin);
    cairo_line_to(context, middle + 3.0, end);
    cairo_line_to(context, frame.width - inset, end);
    SetColor(context, InkOf(frame.state));
    cairo_stroke(context);
}

void PaintBypass(cairo_t* context, const SFrame& frame)
{
    if (frame.index == 0)
    {
        PaintButton(context, frame);
        return;
    }
    const double light = IsLit(frame.state) ? 0.12 : 0.0;
    const CRgb face = frame.state == EState::Disabled ? Palette::faceDisabled
                                                      : Mix(Palette::bypassed, Palette::bypassedEdge, light);
    const SEdge edge =
        frame.state == EState::Focus ? focusEdge : SEdge{ValueColor(Palette::bypassedEdge, frame.state)};
    DrawFace(context, frame.width, frame.height, corner, face, edge);
}

void PaintKnob(cairo_t* context, const SFrame& frame)
{
    constexpr double first = 0.75 * std::numbers::pi;
    constexpr double turn = 1.5 * std::numbers::pi;
    constexpr double arcWidth = 3.0;
    const double middle = frame.width / 2.0;
    const double arcRadius = middle - 3.0;
    const double bodyRadius = middle - 8.5;
    const double angle = first + turn * frame.GetPosition();

    cairo_set_line_width(context, arcWidth);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_arc(context, middle, middle, arcRadius, first, first + turn);
    SetColor(context, Palette::groove);
    cairo_stroke(context);
    if (frame.index > 0)
    {
        const CRgb lit =
            IsLit(frame.state) ? Mix(Palette::accent, Palette::inkBright, 0.25) : Palette::accent;
        cairo_arc(context, middle, middle, arcRadius, first, angle);
        SetColor(context, ValueColor(lit, frame.state));
        cairo_stroke(context);
    }

    const SEdge edge = EdgeOf(frame.state);
    cairo_set_line_width(context, edge.width);
    cairo_arc(context, middle, middle, bodyRadius, 0.0, 2.0 * std::numbers::pi);
    SetColor(context, FaceOf(frame.state));
    cairo_fill_preserve(context);
    SetColor(context, edge.color);
    cairo_stroke(context);

    cairo_set_line_width(context, 2.0);
    cairo_move_to(context, middle + std::cos(angle) * (bodyRadius - 7.0),
                  middle + std::sin(angle) * (bodyRadius - 7.0));
    cairo_line_to(context, middle + std::cos(angle) * (bodyRadius - 2.0),
                  middle + std::sin(angle) * (bodyRadius - 2.0));
    SetColor(context, InkOf(frame.state));
    cairo_stroke(context);
}

void PaintSliderTrack(cairo_t* context, const SFrame& frame)
{
    constexpr double thickness = 4.0;
    constexpr double inset = 3.0;
    AddRoundRectangle(context, inset, (frame.height - thickness) / 2.0, frame.width - 2.0 * inset, thickness,
                      thickness / 2.0);
    SetColor(context, Palette::groove);
    cairo_fill(context);
}

void PaintSliderThumb(cairo_t* context, const SFrame& frame)
{
    DrawFace(context, frame.width, frame.height, corner,
             Mix(FaceOf(frame.state), Palette::ink, frame.state == EState::Disabled ? 0.0 : 0.18),
             EdgeOf(frame.state));
    // The width is odd, so that the line stands on one column of pixels.
    cairo_rectangle(context, std::floor(frame.width / 2.0), 5.0, 1.0, frame.height - 10.0);
    SetColor(context, InkOf(frame.state));
    cairo_fill(context);
}

void PaintMarker(cairo_t* context, const SFrame& frame)
{
    const bool hasFocus = frame.state == EState::Focus;
    const double middle = frame.height / 2.0;
    cairo_move_to(context, 0.5, middle);
    cairo_line_to(context, 6.0, 0.5);
    cairo_line_to(context, frame.width - 0.5, 0.5);
    cairo_line_to(context, frame.width - 0.5, frame.height - 0.5);
    cairo_line_to(context, 6.0, frame.height - 0.5);
    cairo_close_path(context);
    SetColor(context, hasFocus
                          ? Palette::facePushed
                          : Mix(FaceOf(frame.state), InkOf(frame.state), IsLit(frame.state) ? 0.9 : 0.7));
    cairo_fill_preserve(context);
    const SEdge edge = hasFocus ? focusEdge : SEdge{Palette::screen};
    SetColor(context, edge.color);
    cairo_set_line_width(context, edge.width);
    cairo_stroke(context);
}

} // namespace SkinImages
