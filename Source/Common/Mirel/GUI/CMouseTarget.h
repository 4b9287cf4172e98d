#pragma once

#include "Mirel/GUI/InputEvents.h"

namespace Mirel::GUI
{

/// What gets a widget's mouse events. Every operation answers whether the event was handled; none is by
/// default. A press is reported with a click count of 1 only: double clicks come on the way up. A handler may
/// destroy any widget, its own included. GUI thread only.
class CMouseTarget
{
public:
    virtual bool OnLeftDown(const COSXMouseEvent& /*event*/) { return false; }

    /// Every release, with or without a press here before.
    virtual bool OnLeftUp(const COSXMouseEvent& /*event*/) { return false; }

    /// After OnLeftUp if the press was here and the pointer still is; not for second and further clicks.
    virtual bool OnLeftClick(const COSXMouseEvent& /*event*/) { return false; }

    /// The same for the second of two quick clicks.
    virtual bool OnLeftDoubleClick(const COSXMouseEvent& /*event*/) { return false; }

    virtual bool OnRightDown(const COSXMouseEvent& /*event*/) { return false; }
    virtual bool OnRightUp(const COSXMouseEvent& /*event*/) { return false; }
    virtual bool OnRightClick(const COSXMouseEvent& /*event*/) { return false; }
    virtual bool OnRightDoubleClick(const COSXMouseEvent& /*event*/) { return false; }

    virtual bool OnMouseEnter(const COSXMouseEvent& /*event*/) { return false; }

    /// The pointer moves with no button down.
    virtual bool OnMouseMove(const COSXMouseEvent& /*event*/) { return false; }

    /// The cursor is about to be chosen.
    virtual bool OnCursorUpdate(const COSXMouseEvent& /*event*/) { return false; }
    virtual bool OnMouseLeave(const COSXMouseEvent& /*event*/) { return false; }

    /// The pointer moves with a button down.
    virtual bool OnMouseDrag(const COSXMouseEvent& /*event*/) { return false; }
    virtual bool OnMouseWheel(const COSXMouseWheelEvent& /*event*/) { return false; }

    /// A press here will not be followed by its release: the widget was hidden or taken out of its tree, or
    /// another program took the mouse. The place to end what the press began.
    virtual void OnCaptureLost() {}

    virtual ~CMouseTarget() = default;
};

} // namespace Mirel::GUI
