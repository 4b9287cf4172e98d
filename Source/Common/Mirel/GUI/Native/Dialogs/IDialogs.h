#pragma once

#include "Mirel/GUI/Native/INativeWindow.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Mirel::GUI
{

enum class EMessageKind
{
    Information,
    Warning,
    Error
};

enum class EMessageButtons
{
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel
};

/// Yes stands for OK too. A window that is closed without a choice gives Cancel, where there is no such
/// button No, and Yes where there is only OK.
enum class EMessageAnswer
{
    Yes,
    No,
    Cancel
};

/// UTF-8, plain text.
struct SMessage
{
    std::string title;
    std::string text;
    EMessageKind kind = EMessageKind::Information;
    EMessageButtons buttons = EMessageButtons::Ok;
};

/// A choice of files by name.
struct SFileFilter
{
    std::string name;                  ///< as the user reads it, such as "Skin Files (*.xml)"
    std::vector<std::string> patterns; ///< such as "*.xml"
};

struct SFileRequest
{
    std::string title;
    bool isSave = false;          ///< a name for a new file, else one that exists
    std::string folder;           ///< where to begin; empty leaves it open
    std::string fileName;         ///< proposed, without a folder
    std::string defaultExtension; ///< without a dot; added to a name for saving that has none
    std::vector<SFileFilter> filters;
};

/// The windows that ask the user something, outside of the toolkit's own. They do not wait: the answer comes
/// from the run loop, which keeps turning meanwhile. CMessageBox and CFileDialog wait where that is wanted.
/// Tests answer by a script. GUI thread only.
class IDialogs
{
public:
    using DialogId = std::uint64_t; ///< 0 is none
    using MessageReceiver = std::function<void(EMessageAnswer answer)>;

    /// Gets the path, UTF-8 or whatever the file system has; empty if the user gave up.
    using FileReceiver = std::function<void(const std::string& path)>;

    /// Dialogs that are still open go away without an answer.
    virtual ~IDialogs() = default;

    /// 0 if no message can be shown; the receiver is then not called. The owner is the window that it stays
    /// in front of, 0 for none.
    virtual DialogId ShowMessage(const SMessage& message, NativeWindowId owner, MessageReceiver receiver) = 0;

    /// The same for files. A name for saving that has been given an extension is asked for once more if such
    /// a file stands there and the user does not want it replaced.
    virtual DialogId ChooseFile(const SFileRequest& request, NativeWindowId owner, FileReceiver receiver) = 0;

    /// Takes a dialog away without an answer. An unknown id does nothing.
    virtual void Cancel(DialogId id) = 0;

    /// Opens a web page, or a file, with the user's program for it. False if nobody can be asked to.
    virtual bool OpenPage(const std::string& address) = 0;
};

} // namespace Mirel::GUI
