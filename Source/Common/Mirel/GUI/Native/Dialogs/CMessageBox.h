#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <string>

namespace Mirel::GUI
{

/// A message that waits for its answer, by running the loop. GUI thread only.
class CMessageBox
{
public:
    /// Both must outlive the object.
    CMessageBox(IDialogs& dialogs_, CNativeRunLoop& loop_, NativeWindowId owner_ = 0)
        : dialogs(dialogs_),
          loop(loop_),
          owner(owner_)
    {
    }

    /// The user's answer; Cancel if nothing could be shown.
    EMessageAnswer Run(const SMessage& message);

    /// A message with nothing but "OK".
    void Show(const std::string& title, const std::string& text,
              EMessageKind kind = EMessageKind::Information);

private:
    IDialogs& dialogs;
    CNativeRunLoop& loop;
    NativeWindowId owner;
};

} // namespace Mirel::GUI
