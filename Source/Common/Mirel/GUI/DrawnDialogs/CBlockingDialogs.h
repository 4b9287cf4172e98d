#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <map>
#include <memory>

namespace Mirel::GUI
{

/// Keeps input from a window while dialogs of another presenter are open: the desktop's know nothing of the
/// toolkit's windows. Pages block nothing. GUI thread only; receivers may destroy the object.
class CBlockingDialogs : public IDialogs
{
public:
    /// Both are not owned. The presenter must outlive the object, the window need not.
    CBlockingDialogs(IDialogs& dialogs_, CWindowBase& window_);
    CBlockingDialogs(const CBlockingDialogs&) = delete;
    CBlockingDialogs& operator=(const CBlockingDialogs&) = delete;
    ~CBlockingDialogs() override;

    DialogId ShowMessage(const SMessage& message, NativeWindowId owner, MessageReceiver receiver) override;
    DialogId ChooseFile(const SFileRequest& request, NativeWindowId owner, FileReceiver receiver) override;
    void Cancel(DialogId id) override;
    bool OpenPage(const std::string& address) override { return dialogs.OpenPage(address); }

private:
    struct SBlock;

    template <typename TAsk>
    DialogId Ask(const TAsk& ask);

    IDialogs& dialogs;
    CWindowBase& window;
    std::map<DialogId, std::shared_ptr<SBlock>> open;
};

} // namespace Mirel::GUI
