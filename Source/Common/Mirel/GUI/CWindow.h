#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/GUI/CWindowBase.h"

#include <string>

namespace Mirel::GUI
{

/// A top-level, embedded or popup window, as its options say: a content widget and three events. Sizes are
/// skin pixels, positions device pixels of the screen. A window that the platform refused does nothing. GUI
/// thread only. Listeners of its events must not destroy the window.
class CWindow : public CWindowBase
{
public:
    CWindow(INativePlatform& platform_, const SNativeWindowOptions& options);
    ~CWindow() override;

    /// Fires when the user, or who embeds the window, asks to close it, and after the content's events
    /// targets have heard of that. Nothing happens unless a listener does it, by Show(false) as a rule.
    Core::IEventProvider& GetClosingEvent() const { return closing; }

    /// After a change of size or position, whoever made it.
    Core::IEventProvider& GetResizedEvent() const { return resized; }
    Core::IEventProvider& GetMovedEvent() const { return moved; }

    virtual void Show(bool shown);
    bool IsShown() const;
    void Raise();
    CSize GetSize() const { return GetContentSize(); }
    void SetSize(CSize size);
    CPoint GetPosition() const;
    void SetPosition(CPoint devicePosition);

    /// In the middle of the owner, or of the primary screen.
    void Center(const CWindow* over = nullptr);

    /// From 0.0 to 1.0; seen only if CanBeTransparent.
    void SetOpacity(float opacity);
    bool CanBeTransparent() const;

    /// Shows the window and runs the run loop until it is hidden. Meanwhile no input reaches the other
    /// window, which may be null. False if the window, or its native one, was lost meanwhile.
    bool RunModal(CWindowBase* blocked);

private:
    void OnWindowResized(CSize size) override;
    void OnWindowMoved(CPoint devicePosition) override;
    void OnWindowCloseRequested() override;

    mutable Core::CEventProvider closing;
    mutable Core::CEventProvider resized;
    mutable Core::CEventProvider moved;
};

} // namespace Mirel::GUI
