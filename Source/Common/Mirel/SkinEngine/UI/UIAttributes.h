#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFontDescription.h"
#include "Mirel/Graphics/CImageGraphics.h"
#include "Mirel/Graphics/CTextFormat.h"
#include "Mirel/Layout/CLayoutOptions.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Mirel::SkinEngine
{

// How the attributes of skin elements are read. Any thread.

/// "#RRGGBB", "#RGB", "r,g,b" in decimal, or one of the sixteen basic names of HTML; none for another text.
std::optional<Graphics::CColor> ParseColor(std::string_view text);

/// The number of a style for CDrawSurface::SetPenStyle.
std::uint32_t ReadPenStyle(const Containers::CNamedAttributes& attributes, const std::string& name);

/// "left" or "top", "right" or "bottom", as the names of the two ends are; the centre for anything else.
Layout::EAlign ReadAlign(const Containers::CNamedAttributes& attributes, const std::string& name);

Graphics::ETextHAlign ReadTextHAlign(const Containers::CNamedAttributes& attributes);
Graphics::ETextVAlign ReadTextVAlign(const Containers::CNamedAttributes& attributes);
Graphics::CTextFormat ReadTextFormat(const Containers::CNamedAttributes& attributes);

/// `stretch` and `repeat`.
Graphics::CImageGraphics::ETileMode ReadTileMode(const Containers::CNamedAttributes& attributes);

/// The nearest float to a hundredth: the product of two floats would make 5% of 100 pixels less than 5.
inline float FromPercent(float percents)
{
    return static_cast<float>(static_cast<double>(percents) * 0.01);
}

/// The share that a value such as "25%" names; none for a text whose first "%" is not its last character.
std::optional<float> ReadRatio(const Containers::CNamedAttributes& attributes, const std::string& name);

/// The pixels that a plain number names; none for a share, a text without a number, and -1.
std::optional<int> ReadPixels(const Containers::CNamedAttributes& attributes, const std::string& name);

/// Whether the element says nothing of its size along that axis, neither pixels nor a share.
bool NeedsSize(const Containers::CNamedAttributes& attributes, const std::string& axis);

/// `opacity`, from 0 to 1, 1 if it is missing.
float ReadOpacity(const Containers::CNamedAttributes& attributes);

/// `buffered`, or else `anti_flicker`, of a light widget.
bool ReadBuffered(const Containers::CNamedAttributes& attributes);

/// `offscreen_type` of a native-hosted widget: 0 none, 1 card, 2 any other.
int ReadOffscreenType(const Containers::CNamedAttributes& attributes);

/// What a cell asks of its group: alignment, position, ratios, flex.
void ReadLayoutOptions(const Containers::CNamedAttributes& attributes, Layout::CLayoutOptions& options);

/// Changes what the font attributes name.
void ReadFont(const Containers::CNamedAttributes& attributes, Graphics::CFontDescription& font);

/// `orientation` or `vertical`; the given value for neither.
bool ReadVertical(const Containers::CNamedAttributes& attributes, bool missing);

/// Pixels on both axes.
struct SAxisPair
{
    int horizontal = 0;
    int vertical = 0;
};

/// Such as `h_margin` and `v_margin`: what is missing is as `margin` says, or 0 without it.
SAxisPair ReadAxisPair(const Containers::CNamedAttributes& attributes, const std::string& name);

} // namespace Mirel::SkinEngine
