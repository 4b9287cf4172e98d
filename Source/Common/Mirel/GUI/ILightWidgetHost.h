#pragma once

#include "Mirel/Graphics/Geometry.h"

namespace Mirel::GUI
{

class CLightWidget;
class CWidget;

/// What a tree of light widgets needs of the native-backed widget that it lives in. Coordinates are those of
/// the tree's root. GUI thread only.
class ILightWidgetHost
{
public:
    /// To be painted again.
    virtual void InvalidateLight(const Graphics::CRect& rect) = 0;

    /// Whether the host itself is to be seen.
    virtual bool IsLightVisible() const = 0;

    /// The host as a widget; it outlives the tree's membership in it.
    virtual CWidget* GetHostWidget() = 0;

    /// A widget of the tree, and with it all below it, was hidden.
    virtual void OnLightHidden(CLightWidget& widget) = 0;

    /// A widget and all below it leave the tree. Neither hover, capture nor focus may stay in there.
    virtual void OnLightRemoved(CLightWidget& widget) = 0;

    /// A widget is being destroyed: as above, but nothing is sent to it any more.
    virtual void OnLightDestroyed(CLightWidget& widget) = 0;

    /// The cursor of a widget was changed.
    virtual void OnLightCursorChanged(CLightWidget& widget) = 0;

    /// Keys go to the widget from now on; null for none.
    virtual void SetLightFocus(CLightWidget* widget) = 0;

    /// Sends mouse events to the widget until ReleaseLightMouse or the release of the last button. False if
    /// another widget holds the mouse.
    virtual bool CaptureLightMouse(CLightWidget& widget) = 0;
    virtual void ReleaseLightMouse(CLightWidget& widget) = 0;

    virtual ~ILightWidgetHost() = default;
};

} // namespace Mirel::GUI
