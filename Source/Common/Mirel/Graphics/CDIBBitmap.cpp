#include "Mirel/Graphics/CDIBBitmap.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/Limits.h"

#include <algorithm>

namespace Mirel::Graphics
{

CDIBBitmap::CDIBBitmap(int depth_, CSize size, int deviceScale_)
    : depth(depth_),
      deviceScale(std::clamp(deviceScale_, 1, CLimits::maxDeviceScale))
{
    Attach(CBitmapContext::CreateScaled(size, depth, deviceScale));
}

} // namespace Mirel::Graphics
