#include "Mirel/Graphics/TextPlacing.h"

#include "Mirel/Graphics/CFont.h"

#include <cmath>
#include <numbers>

namespace Mirel::Graphics
{

namespace
{

constexpr double fullTurn = 360.0;

bool IsTurned(float escapement)
{
    return std::isfinite(escapement) && (escapement < 0.0F || escapement > 0.0F);
}

double ToRadians(float degrees)
{
    constexpr float halfTurns = 0.0055555557F;
    return static_cast<double>(degrees) * static_cast<double>(halfTurns) * std::numbers::pi;
}

} // namespace

CTurnedBox TurnIn(CSize rect, float escapement, double textHeight)
{
    const double w = rect.width;
    const double h = rect.height;
    if (!IsTurned(escapement))
    {
        return {0.0, 0.0, w, h, 0.0};
    }
    const double angle = ToRadians(escapement);
    const double c = std::fabs(std::cos(angle));
    const double s = std::fabs(std::sin(angle));
    constexpr double nearlyEqual = 1e-6;
    const bool isDiagonal = std::fabs(c - s) < nearlyEqual;
    const double height = isDiagonal ? textHeight : (c * h - s * w) / (c * c - s * s);
    const double width = isDiagonal ? h / c - height : (c * w - s * h) / (c * c - s * s);

    const double degrees =
        std::fmod(fullTurn + std::fmod(static_cast<double>(escapement), fullTurn), fullTurn);
    if (degrees <= 90.0)
    {
        return {0.0, s * width, width, height, angle};
    }
    if (degrees <= 180.0)
    {
        return {c * width, h, width, height, angle};
    }
    if (degrees <= 270.0)
    {
        return {w, h - s * width, width, height, angle};
    }
    return {w - c * width, 0.0, width, height, angle};
}

CSize GetTurnedSize(CSize size, float escapement)
{
    if (!IsTurned(escapement))
    {
        return size;
    }
    const double angle = ToRadians(escapement);
    const double c = std::fabs(std::cos(angle));
    const double s = std::fabs(std::sin(angle));
    const auto roundUp = [](double length)
    {
        // A quarter turn's sine and cosine are off by a rounding error, which is no pixel.
        constexpr double noise = 1e-3;
        return static_cast<int>(std::ceil(length - noise));
    };
    return {roundUp(c * size.width + s * size.height), roundUp(s * size.width + c * size.height)};
}

CSize MeasureText(const CFont* font, const char* text, const CTextLayoutRequest& request)
{
    const auto layout = font == nullptr ? nullptr : font->LayOut(text, request);
    return layout == nullptr ? CSize()
                             : GetTurnedSize(layout->GetExtent(), font->GetDescription().escapement);
}

double GetBaseline(double boxHeight, double textHeight, double ascent, ETextVAlign align)
{
    switch (align)
    {
    case ETextVAlign::Center:
        return (boxHeight - textHeight) * 0.5 + ascent;
    case ETextVAlign::Bottom:
        return boxHeight - textHeight + ascent;
    case ETextVAlign::Top:
        break;
    }
    return ascent;
}

} // namespace Mirel::Graphics
