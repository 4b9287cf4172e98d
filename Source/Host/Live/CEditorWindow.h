#pragma once

#include "Host/Editor/CHostEditor.h"
#include "Mirel/GUI/Native/INativePlatform.h"

#include <functional>
#include <memory>
#include <string>

namespace Host
{

/// A window of the host with an instance's editor in it: as large as the editor asks for, and the editor as
/// large as the user makes it. GUI thread only. Platform and editor must outlive it.
class CEditorWindow : private Mirel::GUI::INativeWindowSink
{
public:
    CEditorWindow(Mirel::GUI::INativePlatform& platform_, CHostEditor& editor_);
    CEditorWindow(const CEditorWindow&) = delete;
    CEditorWindow& operator=(const CEditorWindow&) = delete;
    ~CEditorWindow() override;

    /// False with one line in `error`.
    bool Open(const std::string& title, std::string& error);
    bool IsClosed() const { return isClosed; }
    void SetTitle(const std::string& title) { window->SetTitle(title); }
    void SetSize(int width, int height);

    /// Called when the space bar is pressed, and the editor has no use for it.
    std::function<void()> onSpace;

    /// Opens a menu for a parameter that was right-clicked, in front of the window; false if there is none.
    std::function<bool(const char* parameterId, const Mirel::GUI::INativeWindow& window)> onRightClick;

private:
    void OnResized(Mirel::GUI::CSize size) override;
    void OnCloseRequested() override { isClosed = true; }
    void OnClosed() override { isClosed = true; }
    void OnFocusIn() override { window->FocusEmbedded(); }
    bool OnKeyDown(const Mirel::GUI::SNativeKeyEvent& event) override;

    Mirel::GUI::INativePlatform& platform;
    CHostEditor& editor;
    std::unique_ptr<Mirel::GUI::INativeWindow> window;
    bool isClosed = false;
};

} // namespace Host
