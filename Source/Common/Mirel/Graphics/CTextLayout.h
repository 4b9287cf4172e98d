#pragma once

#include "Mirel/Graphics/CFontDescription.h"
#include "Mirel/Graphics/CTextFormat.h"
#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/PangoNames.h"

#include <compare>
#include <memory>

namespace Mirel::Graphics
{

/// How a text is set into lines.
struct CTextLayoutRequest
{
    /// Bits of CTextFormat; those that matter here are multiline, noWrap and ellipsis.
    std::uint32_t flags = 0;

    /// Pixels that lines may take, where the flags heed it; negative for any.
    int width = -1;

    auto operator<=>(const CTextLayoutRequest&) const = default;
};

/// A text set into lines, to measure and to draw. It must not outlive its font. GUI thread.
class CTextLayout
{
public:
    /// Takes over the caller's reference to the layout.
    CTextLayout(PangoLayout* layout_, double ascent_, double descent_);
    CTextLayout(const CTextLayout&) = delete;
    CTextLayout& operator=(const CTextLayout&) = delete;
    ~CTextLayout();

    int GetLineCount() const;

    /// Of the widest line, in pixels.
    double GetWidth() const { return width; }

    /// Of all lines, in pixels.
    double GetHeight() const;

    /// From one baseline to the next: whole, so that all lines look the same.
    double GetPitch() const;

    /// Width and height rounded up to whole pixels.
    CSize GetExtent() const;

    /// Draws the lines, one below the other, with the first baseline at y and each aligned in a box of that
    /// width that begins at x, in the source colour of the context.
    void Draw(cairo_t* context, double x, double y, double boxWidth, ETextHAlign align) const;

private:
    PangoLayout* layout;
    double ascent;
    double descent;
    double width = 0.0;
};

} // namespace Mirel::Graphics
