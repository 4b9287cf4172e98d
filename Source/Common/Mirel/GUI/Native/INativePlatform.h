#pragma once

#include "Mirel/GUI/Native/INativeWindow.h"
#include "Mirel/GUI/Native/INativeWindowSink.h"
#include "Mirel/Graphics/Geometry.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Mirel::GUI
{

class CNativeRunLoop;

/// A screen in device pixels; several may overlap.
struct SNativeScreen
{
    Graphics::CRect bounds;
    Graphics::CRect workArea; ///< without panels; the same as bounds if nobody tells
    bool isPrimary = false;
};

/// All that the toolkit asks of a windowing system. One for each editor or program, each with a connection of
/// its own; made by CreateNativePlatform. It must outlive its windows. GUI thread only.
///
/// The widgets of one window live in the toolkit: it keeps their tree, collects what is to be repainted,
/// paints into a 32-bit bitmap and presents that. A platform neither draws nor knows widgets.
class INativePlatform
{
public:
    using TextReceiver = std::function<void(const std::string& text)>;

    virtual ~INativePlatform() = default;

    /// A hidden window. The sink is not owned and must outlive the window. None if the windowing system
    /// refuses: the foreign parent does not exist, or the display is lost.
    virtual std::unique_ptr<INativeWindow> CreateNativeWindow(const SNativeWindowOptions& options,
                                                              INativeWindowSink& sink) = 0;

    /// Whether there are windows that a user can see.
    virtual bool HasDisplay() const = 0;

    virtual CNativeRunLoop& GetRunLoop() const = 0;

    /// Device pixels per skin pixel, 1 to 4.
    virtual int GetScale() const = 0;

    /// One at least, the primary one first.
    virtual std::vector<SNativeScreen> GetScreens() const = 0;

    /// On the screen, in device pixels.
    virtual CPoint GetPointerPosition() const = 0;

    /// ModifierFlags as they are now.
    virtual std::uint32_t GetModifiers() const = 0;

    /// Puts UTF-8 text on the clipboard. What was put there goes with the platform.
    virtual void SetClipboardText(const std::string& text) = 0;

    /// Hands the clipboard's text over, UTF-8, empty if there is none: in a later pass of the run loop, or at
    /// once if the text is the platform's own. Not called any more once the platform is destroyed.
    virtual void RequestClipboardText(TextReceiver receiver) = 0;
};

} // namespace Mirel::GUI
