#pragma once

#include "Mirel/GUI/WidgetEvents.h"

namespace Mirel::GUI
{

/// What hears what happens to a native-backed widget, and draws for it. Operations with a result answer
/// whether the event was handled, which keeps it from the targets after this one. GUI thread only.
class CWidgetEventsTarget
{
public:
    virtual void OnShow(const COSXOpenEvent& /*event*/) {}
    virtual void OnHide(const COSXOpenEvent& /*event*/) {}
    virtual void OnEnable(const COSXEnableEvent& /*event*/) {}
    virtual void OnDisable(const COSXEnableEvent& /*event*/) {}
    virtual void OnSize(const COSXSizeEvent& /*event*/) {}
    virtual void OnMove(const COSXPositionEvent& /*event*/) {}

    /// Must not change the tree of widgets.
    virtual void OnDraw(const COSXNativeDrawEvent& /*event*/) {}

    /// The window that the widget is the content of is asked to close.
    virtual void OnClose() {}

    virtual bool OnNativeEvent(const COSXNativeNSEvent& /*event*/) { return false; }

    virtual ~CWidgetEventsTarget() = default;
};

} // namespace Mirel::GUI
