#pragma once

#include "Mirel/GUI/Native/ECursorShape.h"
#include "Mirel/GUI/Native/NativeEvents.h"
#include "Mirel/Graphics/CBitmap.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <cstdint>
#include <string>

namespace Mirel::GUI
{

/// A window's name in the windowing system, such as hosts hand over for embedding. 0 is none.
using NativeWindowId = std::uintptr_t;

class INativeWindow;

enum class ENativeWindowKind
{
    TopLevel,
    Child,  ///< inside the window of somebody else
    Dialog, ///< top-level, in front of its owner
    Menu,   ///< popup: no frame, takes no focus; while shown it holds the pointer, and a press outside of it
            ///< and of other menus of the platform gives OnCloseRequested
    Tooltip ///< popup: no frame, takes no focus and no input
};

/// How a window is made. Device pixels.
struct SNativeWindowOptions
{
    ENativeWindowKind kind = ENativeWindowKind::TopLevel;
    CPoint position;       ///< on the screen; of a child, in its parent
    bool isPlaced = false; ///< of top-level windows and dialogs: false lets the desktop choose the place
    CSize size = {1, 1};   ///< without a frame; a side below 1 counts as 1
    NativeWindowId foreignParent = 0; ///< of a child: where it is embedded; must be given
    const INativeWindow* owner =
        nullptr;                     ///< of the others: the window that they belong to and stay in front of
    NativeWindowId foreignOwner = 0; ///< the same for a window of somebody else, used without an owner
    std::string title;               ///< UTF-8
    bool isResizable = true;         ///< by the user
};

/// A window of the windowing system: no widgets, no drawing, only presenting of pixels painted elsewhere.
/// Made hidden by INativePlatform, destroyed with the object. GUI thread only. All measures are device
/// pixels: skin pixels times the platform's scale.
///
/// After INativeWindowSink::OnClosed operations do nothing and queries give what was last known.
class INativeWindow
{
public:
    virtual ~INativeWindow() = default;

    /// For embedding something in this window; 0 once it is closed, and without a windowing system.
    virtual NativeWindowId GetId() const = 0;

    /// The window of the desktop that holds this one: its own, or of a child the outermost one around it. For
    /// dialogs of other programs, which cannot stay in front of a part of a window.
    virtual NativeWindowId GetTopLevelId() const { return GetId(); }

    /// False after OnClosed.
    virtual bool IsOpen() const = 0;

    /// Shows or hides. A dialog or top-level window that is shown comes to the front and is offered the
    /// focus.
    virtual void Show(bool show) = 0;
    virtual bool IsShown() const = 0; ///< as last asked for
    virtual void Raise() = 0;

    virtual void SetPosition(CPoint position) = 0;
    virtual CPoint GetPosition() const = 0; ///< on the screen; of a child, in its parent
    virtual CPoint GetScreenPosition() const = 0;
    virtual void SetSize(CSize size) = 0;
    virtual CSize GetSize() const = 0;

    /// What the user may size the window to; a side of 0 is not limited. SetSize is not bound by it.
    virtual void SetSizeLimits(CSize smallest, CSize largest) = 0;

    virtual void SetTitle(const std::string& title) = 0;

    /// The window that this one stays in front of; null for none.
    virtual void SetOwner(const INativeWindow* owner) = 0;

    /// 0.0 transparent to 1.0; seen only if CanBeTransparent.
    virtual void SetOpacity(float opacity) = 0;

    /// Whether the display blends windows. Always false for a child.
    virtual bool CanBeTransparent() const = 0;

    /// Asks for the keys. OnFocusIn follows if the windowing system agrees.
    virtual void SetFocus() = 0;
    virtual bool HasFocus() const = 0;

    /// Gives the keys to the window that somebody embedded in this one; nothing if there is none.
    virtual void FocusEmbedded() {}

    /// Sends all pointer events here until ReleaseMouse, wherever the pointer is. False if somebody else
    /// holds the pointer. A held button captures by itself until its release.
    virtual bool CaptureMouse() = 0;
    virtual void ReleaseMouse() = 0;

    /// What the pointer looks like over this window.
    virtual void SetCursor(ECursorShape shape) = 0;

    /// A cursor from a 32-bit bitmap, which is copied. Anything else, or a hot spot outside, gives Normal.
    virtual void SetCursor(const Graphics::CBitmap& picture, CPoint hotSpot) = 0;

    /// Asks for an OnPaint; any number of requests gives one.
    virtual void RequestPaint() = 0;

    /// Shows the given part of a 32-bit bitmap whose top left is the window's. What lies outside of either is
    /// left out. The pixels are taken before it returns. Alpha is ignored. Best called from OnPaint;
    /// elsewhere it works too, at some cost if the display has not taken the pixels presented before.
    virtual void Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region) = 0;
};

} // namespace Mirel::GUI
