#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/GUI/Native/NativeEvents.h"

#include <variant>

namespace Mirel::Graphics
{
class CDrawSurface;
class CSimple2DRegion;
} // namespace Mirel::Graphics

namespace Mirel::GUI
{

/// The widget can be seen from now on, or not any more: it was shown or hidden itself, or something around
/// it.
struct COSXOpenEvent
{
    bool shown;
};

struct COSXEnableEvent
{
    bool enabled;
};

struct COSXSizeEvent
{
    CSize size;
    CSize previous;
};

/// In the parent, in pixels from the top left.
struct COSXPositionEvent
{
    CPoint position;
    CPoint previous;
};

/// The time to draw. Whole coordinates are pixels of the widget; what lies outside of the region's bounding
/// box is not shown.
struct COSXNativeDrawEvent
{
    Graphics::CDrawSurface& surface;
    const Graphics::CSimple2DRegion& region;
};

/// Input as the platform gave it, before the widget's targets get it; device pixels of the window.
struct COSXNativeNSEvent
{
    std::variant<const SNativeMouseEvent*, const SNativeWheelEvent*, const SNativeKeyEvent*> event;
};

} // namespace Mirel::GUI
