#pragma once

#include <cstdint>

namespace Mirel::Graphics
{

enum class ETextVAlign : std::uint8_t
{
    Top = 0,
    Center = 1,
    Bottom = 2
};

enum class ETextHAlign : std::uint8_t
{
    Left = 0,
    Center = 1,
    Right = 2
};

/// How a text is placed in a rectangle.
struct CTextFormat
{
    /// The text is set in its rectangle; without this bit CDrawSurface::DrawTextInRect draws nothing.
    static constexpr std::uint32_t wordBreak = 1U;

    /// The text takes as many lines as it needs: it is broken where it has line breaks, and between words
    /// where a line would be wider than the rectangle. Without it all is one line, its line breaks blanks.
    static constexpr std::uint32_t multiline = 2U;

    /// Several lines are broken at line breaks only.
    static constexpr std::uint32_t noWrap = 4U;

    /// What does not fit into the width is replaced by an ellipsis at the end of its line; otherwise it is
    /// clipped.
    static constexpr std::uint32_t ellipsis = 8U;

    /// CDrawSurface::GetTextExtentInRect computes; without this bit it gives 0, 0.
    static constexpr std::uint32_t calculate = 16U;

    std::uint32_t flags = wordBreak;
    ETextVAlign vAlign = ETextVAlign::Top;
    ETextHAlign hAlign = ETextHAlign::Left;

    bool Has(std::uint32_t flag) const { return (flags & flag) != 0; }
    bool operator==(const CTextFormat&) const = default;
};

} // namespace Mirel::Graphics
