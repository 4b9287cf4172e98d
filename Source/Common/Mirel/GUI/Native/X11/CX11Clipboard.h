#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/Native/X11/CX11Connection.h"

#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace Mirel::GUI
{

/// Text on the selection "CLIPBOARD": gives out what was put there, and asks the program that owns it. GUI
/// thread only.
class CX11Clipboard
{
public:
    using TextReceiver = INativePlatform::TextReceiver;

    /// The loop must outlive this object.
    CX11Clipboard(CX11Connection& connection_, CNativeRunLoop& loop_) : connection(connection_), loop(loop_)
    {
    }
    CX11Clipboard(const CX11Clipboard&) = delete;
    CX11Clipboard& operator=(const CX11Clipboard&) = delete;
    ~CX11Clipboard();

    /// time is of the input event behind it.
    void SetText(const std::string& text_, xcb_timestamp_t time);

    /// The receiver gets an empty text if nobody owns the selection, or its owner has no text or does not
    /// answer.
    void RequestText(TextReceiver receiver, xcb_timestamp_t time);

    /// Whether the event was of the selection.
    bool HandleEvent(const xcb_generic_event_t& event);

    /// All who wait get an empty text.
    void GiveUp() { Finish({}); }

private:
    void MakeWindow();
    void Convert(xcb_atom_t target, xcb_timestamp_t time);
    void Answer(const xcb_selection_request_event_t& request) const;
    bool WriteTarget(const xcb_selection_request_event_t& request, xcb_atom_t property) const;
    void OnConverted(const xcb_selection_notify_event_t& event);
    void OnPiece();
    void Finish(const std::string& result);

    CX11Connection& connection;
    CNativeRunLoop& loop;
    xcb_window_t window = XCB_NONE; ///< Never shown; owns and asks.
    bool isOwner = false;
    xcb_timestamp_t ownedSince = 0;
    std::string text;
    std::vector<TextReceiver> receivers;
    CNativeRunLoop::TimerId patience = 0;
    bool isIncremental = false;
    std::string pieces;
};

} // namespace Mirel::GUI
