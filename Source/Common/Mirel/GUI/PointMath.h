#pragma once

#include "Mirel/Core/Numeric.h"
#include "Mirel/Graphics/Geometry.h"

#include <cstdint>

namespace Mirel::GUI
{

using Core::CPoint;
using Core::CSize;
using Graphics::CRect;

/// Sums that stay within the integers: a skin may put a widget anywhere.
inline CPoint Plus(CPoint a, CPoint b)
{
    return {Core::SaturateToInt32(std::int64_t{a.x} + b.x), Core::SaturateToInt32(std::int64_t{a.y} + b.y)};
}

inline CPoint Minus(CPoint a, CPoint b)
{
    return {Core::SaturateToInt32(std::int64_t{a.x} - b.x), Core::SaturateToInt32(std::int64_t{a.y} - b.y)};
}

/// The rectangle moved, its size kept.
inline CRect Plus(const CRect& rect, CPoint delta)
{
    return {Plus(rect.GetOrigin(), delta), rect.GetSize()};
}

inline CRect Minus(const CRect& rect, CPoint delta)
{
    return {Minus(rect.GetOrigin(), delta), rect.GetSize()};
}

} // namespace Mirel::GUI
