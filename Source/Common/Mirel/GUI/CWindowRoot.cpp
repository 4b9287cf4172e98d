#include "Mirel/GUI/CWindowRoot.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr int maxScale = 4;

/// Rounds down, left of and above the window too.
int DivideDown(int value, int divisor)
{
    const int quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

int Times(int value, int factor)
{
    return Core::SaturateToInt32(std::int64_t{value} * factor);
}

} // namespace

CWindowRoot::CWindowRoot(INativePlatform& platform_)
    : platform(platform_),
      scale(std::clamp(platform_.GetScale(), 1, maxScale))
{
}

CPoint CWindowRoot::ToSkin(CPoint devicePoint) const
{
    return {DivideDown(devicePoint.x, scale), DivideDown(devicePoint.y, scale)};
}

CSize CWindowRoot::ToDevice(CSize skinSize) const
{
    return {Times(skinSize.width, scale), Times(skinSize.height, scale)};
}

CPoint CWindowRoot::ToScreen(CPoint skinPoint) const
{
    const CPoint inWindow = {Times(skinPoint.x, scale), Times(skinPoint.y, scale)};
    return native == nullptr ? inWindow : Plus(native->GetScreenPosition(), inWindow);
}

void CWindowRoot::SetNativeWindow(std::unique_ptr<INativeWindow> newNative)
{
    native = std::move(newNative);
}

void CWindowRoot::SetScale(int newScale)
{
    scale = std::clamp(newScale, 1, maxScale);
}

} // namespace Mirel::GUI
