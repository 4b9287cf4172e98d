#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"

#include <array>
#include <cstdint>

namespace Mirel::GUI
{

/// Which light widget of an adapter gets input: the one under the pointer, the one that holds the mouse since
/// a button was pressed on it, the one that has the keyboard focus. Events come in the adapter's coordinates.
/// GUI thread only; handlers may destroy anything, the adapter included.
class CLightWidgetAdapter::CInputManager
{
public:
    enum class EButton : std::uint8_t
    {
        Left = 0,
        Right = 1,
    };

    explicit CInputManager(CLightWidgetAdapter& host_) : host(host_) {}

    bool OnDown(EButton button, const COSXMouseEvent& event);

    /// The capture ends with the release of the last button.
    bool OnUp(EButton button, const COSXMouseEvent& event);

    /// After OnUp: sent on if the widget under the pointer is the one that was pressed.
    bool OnClick(EButton button, bool isDouble, const COSXMouseEvent& event);
    bool OnMove(const COSXMouseEvent& event);
    bool OnDrag(const COSXMouseEvent& event);
    bool OnWheel(const COSXMouseWheelEvent& event);
    bool OnCursorUpdate(const COSXMouseEvent& event);
    bool OnHostLeave(const COSXMouseEvent& event);
    void OnCaptureLost();

    CLightWidget* GetCaptured() const { return captured; }
    CLightWidget* GetHover() const { return hover; }

    /// False if another widget holds the mouse.
    bool Capture(CLightWidget& widget);
    void Release(CLightWidget& widget);

    /// Stays while the host is without the focus.
    CLightWidget* GetFocus() const { return focus; }

    /// Takes the host's focus with it; null leaves that where it is. A widget that is not visible or not
    /// enabled is ignored.
    void SetFocus(CLightWidget* widget);

    /// The host has the focus from now on, or not any more.
    bool OnHostFocus(bool gained);

    /// A widget, and all below it, is gone from the tree. A living one hears what it lost.
    void Forget(CLightWidget& widget, bool isAlive);

    /// A widget, and all below it, cannot be seen any more. A gesture that it holds stays its own to the end,
    /// so that no other widget gets the rest of it.
    void OnHidden(CLightWidget& widget);

private:
    /// What the widgets that went had.
    struct SLost
    {
        CLightWidget* hover;
        CLightWidget* captured;
        CLightWidget* focus;
    };

    SLost Take(const CLightWidget& widget);
    static void Tell(const SLost& lost);
    bool ChangeHover(CLightWidget* widget, const COSXMouseEvent& event);
    bool TrackCaptured(const COSXMouseEvent& event, bool& wasEntered);
    void EndCapture(const COSXMouseEvent& event);

    CLightWidgetAdapter& host;
    CLightWidget* captured = nullptr;
    CLightWidget* hover = nullptr;
    CLightWidget* focus = nullptr;
    std::array<CLightWidget*, 2> pressed = {}; ///< What the last press of each button was on.
    std::uint32_t held = 0;                    ///< Bits of the buttons that are down.
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
