#pragma once

#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <map>
#include <memory>

namespace Mirel::GUI
{

/// Messages and the choice of files in windows that the toolkit draws, where the desktop has no program for
/// them. GUI thread only; receivers may destroy the object.
class CDrawnDialogs : public IDialogs
{
public:
    /// The platform must outlive the object. The window gets no input while a dialog is open, whoever is
    /// named as its owner; null for none.
    CDrawnDialogs(INativePlatform& platform_, const CPopupLook& look_, CWindowBase* window_ = nullptr);
    CDrawnDialogs(const CDrawnDialogs&) = delete;
    CDrawnDialogs& operator=(const CDrawnDialogs&) = delete;
    ~CDrawnDialogs() override;

    /// For dialogs that open from now on. Null before the window dies.
    void SetOwnerWindow(CWindowBase* newWindow) { window = newWindow; }

    DialogId ShowMessage(const SMessage& message, NativeWindowId owner, MessageReceiver receiver) override;
    DialogId ChooseFile(const SFileRequest& request, NativeWindowId owner, FileReceiver receiver) override;
    void Cancel(DialogId id) override;

    /// Always false: no page can be drawn.
    bool OpenPage(const std::string& address) override;

    /// Null for one that is not open.
    CDrawnDialog* Find(DialogId id) const;

private:
    SDialogOwner MakeOwner(NativeWindowId owner) const;
    DialogId Open(DialogId id, std::unique_ptr<CDrawnDialog> dialog);

    INativePlatform& platform;
    CPopupLook look;
    CWindowBase* window;
    DialogId lastId = 0;
    std::map<DialogId, std::unique_ptr<CDrawnDialog>> open;
};

} // namespace Mirel::GUI
