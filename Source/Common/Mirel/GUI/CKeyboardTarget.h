#pragma once

#include "Mirel/GUI/InputEvents.h"

namespace Mirel::GUI
{

/// What gets a widget's keys while it has the focus. Every operation answers whether the event was handled;
/// none is by default. A handler may destroy any widget, its own included. GUI thread only.
class CKeyboardTarget
{
public:
    /// Only for keys that AcceptsKey says yes to.
    virtual bool OnKeyDown(const COSXKeyEvent& /*event*/) { return false; }
    virtual bool OnKeyUp(const COSXKeyEvent& /*event*/) { return false; }

    virtual bool OnModifierChanged(const COSXModifierKeyEvent& /*event*/) { return false; }

    /// Asked before each press and release of a key.
    virtual bool AcceptsKey(const COSXKeyEvent& /*event*/) { return false; }

    virtual bool OnFocusGained() { return false; }
    virtual bool OnFocusLost() { return false; }

    virtual ~CKeyboardTarget() = default;
};

} // namespace Mirel::GUI
