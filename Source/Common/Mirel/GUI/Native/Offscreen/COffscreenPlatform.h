#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/Native/CClickCounter.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenStack.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Mirel::GUI
{

/// A windowing system without a display: windows are bitmaps, and a user is played by the calls below. There
/// is one screen, 4096 by 4096 device pixels. Windows paint in the next pass of the run loop, or in Pump. GUI
/// thread only.
class COffscreenPlatform : public INativePlatform
{
public:
    /// The scale is clamped to 1 to 4.
    explicit COffscreenPlatform(CNativeRunLoop& loop_, int scale_ = 1);
    ~COffscreenPlatform() override;

    std::unique_ptr<INativeWindow> CreateNativeWindow(const SNativeWindowOptions& options,
                                                      INativeWindowSink& sink) override;
    bool HasDisplay() const override { return false; }
    CNativeRunLoop& GetRunLoop() const override { return loop; }
    int GetScale() const override { return scale; }
    std::vector<SNativeScreen> GetScreens() const override;
    CPoint GetPointerPosition() const override { return pointer; }
    std::uint32_t GetModifiers() const override { return modifiers; }
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    void RequestClipboardText(TextReceiver receiver) override { receiver(clipboard); }

    /// From the back; null out of range.
    COffscreenWindow* GetWindow(int index) const { return windows.Get(index); }
    int GetWindowCount() const { return windows.GetCount(); }

    /// Lets every window paint that has to; false if none had.
    bool Pump();

    /// What a user does, in device pixels of the screen. Enter, leave and click counts follow from that.
    void MovePointer(CPoint screenPosition);
    void PressButton(EMouseButton button);
    void ReleaseButton(EMouseButton button);

    /// Notches, positive away from the user.
    void TurnWheel(double notches);

    /// Moves the clock by which clicks are counted.
    void Wait(std::uint64_t milliseconds) { timeMs += milliseconds; }

    /// To the latest of the menus that are shown, else to the window with the focus; the event's modifiers
    /// are taken over from SetModifiers.
    void PressKey(SNativeKeyEvent event);
    void ReleaseKey(SNativeKeyEvent event);

    /// ModifierFlags; sends the key events of the modifiers that changed.
    void SetModifiers(std::uint32_t newModifiers);

    /// The user asks to close the window with the focus.
    void AskToClose();

    /// Another program takes the mouse.
    void LoseCapture();

    /// Moves the platform to another scale.
    void ChangeScale(int newScale);

    COffscreenWindow* GetFocus() const { return focus; }

    /// For the windows.
    void Add(COffscreenWindow& window) { windows.Add(window); }
    void Remove(COffscreenWindow& window);
    void Raise(COffscreenWindow& window) { windows.Raise(window); }
    void OnWindowShown(COffscreenWindow& window);
    void SetFocus(COffscreenWindow* window);
    bool Capture(COffscreenWindow& window);
    void ReleaseCapture(const COffscreenWindow& window);
    void ForgetInput(const COffscreenWindow& window);
    void SchedulePump();

private:
    COffscreenWindow* FindTarget() const;
    void DismissMenus();
    SNativeMouseEvent MakeEvent(const COffscreenWindow& window) const;
    bool Track();
    void SendKey(SNativeKeyEvent event, bool down);

    CNativeRunLoop& loop;
    int scale;
    COffscreenStack windows;
    COffscreenWindow* focus = nullptr;
    COffscreenWindow* hover = nullptr;
    COffscreenWindow* captured = nullptr;
    COffscreenWindow* grabbed = nullptr; ///< By a held button.
    CPoint pointer;
    std::uint32_t buttons = 0;
    std::uint32_t modifiers = 0;
    std::uint64_t timeMs = 1;
    CClickCounter clicks;
    std::string clipboard;
    std::shared_ptr<bool> pumpScheduled = std::make_shared<bool>(false);
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
