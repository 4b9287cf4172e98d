#pragma once

#include <cstdint>

namespace SkinImages
{

/// A colour as 0xRRGGBB.
using CRgb = std::uint32_t;

/// The colours of the factory skins' images. Texts that a skin lays over a face keep a contrast of at least
/// 4.5 to 1 with it; what a user acts on differs from what is around it by 3 to 1.
namespace Palette
{
inline constexpr CRgb strip = 0x1B1F24;
inline constexpr CRgb edge = 0x2E353D;
inline constexpr CRgb screen = 0x0E1114;
inline constexpr CRgb field = 0x111417;

inline constexpr CRgb face = 0x282E35;
inline constexpr CRgb faceHover = 0x323A43;
inline constexpr CRgb facePushed = 0x1D2227;
inline constexpr CRgb faceDisabled = 0x1E2328;
inline constexpr CRgb border = 0x55606B;
inline constexpr CRgb borderHover = 0x7F8C99;
inline constexpr CRgb borderDisabled = 0x343B43;
inline constexpr CRgb focus = 0xB9DAFF;

inline constexpr CRgb ink = 0xD6DCE2;
inline constexpr CRgb inkBright = 0xFFFFFF;
inline constexpr CRgb inkDisabled = 0x5E6872;
inline constexpr CRgb groove = 0x3A434D;
inline constexpr CRgb accent = 0x7FB2E0;
inline constexpr CRgb on = 0x5FBF86;
inline constexpr CRgb bypassed = 0x8A3B36;
inline constexpr CRgb bypassedEdge = 0xE0746A;
inline constexpr CRgb clipped = 0xFF5A4F;
inline constexpr CRgb message = 0x6BE39A;
inline constexpr CRgb lampOff = 0x2A3037;
} // namespace Palette

} // namespace SkinImages
