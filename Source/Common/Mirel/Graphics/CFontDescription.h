#pragma once

#include <cstdint>
#include <string>

namespace Mirel::Graphics
{

/// How the edges of glyphs are drawn. Only NoAntiAlias makes a difference: the others are smoothed with grey.
enum class EFontQuality : std::uint8_t
{
    Default = 0,
    NoAntiAlias = 3,
    AntiAlias = 4,
    ClearType = 5
};

/// What font is wanted.
struct CFontDescription
{
    static constexpr int normalWeight = 400;
    static constexpr int boldWeight = 700;

    /// The family's name; empty for the product's own face, which also stands in for one that is not found.
    std::string face;

    /// Pixels. CLimits bounds it; below 1 counts as 1.
    int height = 12;

    /// Carried, and ignored: faces are not stretched.
    int width = 0;

    /// boldWeight asks for the bold face, anything else for the regular one.
    int weight = normalWeight;

    bool italic = false;
    bool underline = false;
    EFontQuality quality = EFontQuality::Default;

    /// Degrees, counterclockwise: how texts are turned in their rectangles. What is not finite counts as 0.
    float escapement = 0.0F;

    bool operator==(const CFontDescription&) const = default;
};

} // namespace Mirel::Graphics
