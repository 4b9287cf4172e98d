#pragma once

#include "Canvas.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Support/DataFolder.h"

#include <algorithm>

namespace Tests
{

/// The manager of the product's own fonts, one for all tests of a program that need no other.
inline Mirel::Graphics::CFontManager& GetFonts()
{
    static Mirel::Graphics::CFontManager manager(Mirel::Graphics::GetFontsFolder(GetDataFolder()));
    return manager;
}

inline Mirel::Graphics::CFontDescription Describe(int height, float escapement = 0.0F)
{
    Mirel::Graphics::CFontDescription description;
    description.height = height;
    description.escapement = escapement;
    return description;
}

/// The smallest rectangle around all painted pixels.
inline Mirel::Graphics::CRect GetInk(const CCanvas& canvas, Mirel::Graphics::CSize size)
{
    int left = size.width;
    int top = size.height;
    int right = 0;
    int bottom = 0;
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            if (canvas.At(x, y) != 0)
            {
                left = std::min(left, x);
                right = std::max(right, x + 1);
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return right > left ? Mirel::Graphics::CRect(left, top, right - left, bottom - top)
                        : Mirel::Graphics::CRect();
}

/// True if the rectangle b lies inside of a.
inline bool Holds(const Mirel::Graphics::CRect& a, const Mirel::Graphics::CRect& b)
{
    return Mirel::Graphics::Intersect(a, b) == b;
}

} // namespace Tests
