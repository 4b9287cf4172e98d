#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Dialogs/CChildProcess.h"
#include "Mirel/GUI/Native/Dialogs/DialogArguments.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Mirel::GUI
{

/// Dialogs of the user's desktop, which a program of the desktop shows: zenity or kdialog. GUI thread only.
class CDesktopDialogs : public IDialogs
{
public:
    struct SOptions
    {
        std::string folders; ///< where programs are, divided by colons; empty takes the environment's
        std::string display; ///< for the programs' windows; empty takes the environment's
        IDialogs* fallback = nullptr; ///< shows what no program can; not owned, may be none
    };

    /// The loop and the fallback must outlive the object.
    explicit CDesktopDialogs(CNativeRunLoop& loop_) : CDesktopDialogs(loop_, SOptions()) {}
    CDesktopDialogs(CNativeRunLoop& loop_, const SOptions& options);
    CDesktopDialogs(const CDesktopDialogs&) = delete;
    CDesktopDialogs& operator=(const CDesktopDialogs&) = delete;

    /// Programs that show a dialog are killed; those that show a page go on.
    ~CDesktopDialogs() override;

    DialogId ShowMessage(const SMessage& message, NativeWindowId owner, MessageReceiver receiver) override;
    DialogId ChooseFile(const SFileRequest& request, NativeWindowId owner, FileReceiver receiver) override;
    void Cancel(DialogId id) override;
    bool OpenPage(const std::string& address) override;

private:
    using Finished = std::function<void(int exitCode, const std::string& output)>;

    bool Ask(DialogId id, const std::vector<std::string>& arguments, Finished finished);
    bool AskForFile(DialogId id, const SFileRequest& request, NativeWindowId owner, FileReceiver receiver);
    void OnFile(DialogId id, const SFileRequest& request, NativeWindowId owner, const FileReceiver& receiver,
                const std::string& chosen);
    bool ConfirmReplacing(DialogId id, const SFileRequest& request, NativeWindowId owner,
                          const FileReceiver& receiver, const std::string& path);
    template <typename TRequest, typename TAnswer>
    DialogId PassOn(DialogId id, TRequest ask, std::function<void(TAnswer)> receiver);

    CNativeRunLoop& loop;
    std::string folders;
    std::string display;
    IDialogs* fallback;
    EDialogHelper helper = EDialogHelper::Zenity;
    std::string helperPath; ///< Empty if there is none.
    DialogId lastId = 0;
    std::map<DialogId, std::unique_ptr<CChildProcess>> open;
    std::map<DialogId, DialogId> passedOn; ///< The fallback's dialogs by our id.
    std::vector<std::unique_ptr<CChildProcess>> pages;
};

} // namespace Mirel::GUI
