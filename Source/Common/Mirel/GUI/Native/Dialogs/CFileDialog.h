#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <string>

namespace Mirel::GUI
{

/// Asks the user for a file and waits for the answer, by running the loop. GUI thread only.
class CFileDialog
{
public:
    /// Both must outlive the object.
    CFileDialog(IDialogs& dialogs_, CNativeRunLoop& loop_, NativeWindowId owner_ = 0)
        : dialogs(dialogs_),
          loop(loop_),
          owner(owner_)
    {
    }

    void SetTitle(const std::string& title) { request.title = title; }

    /// Without a dot.
    void SetDefaultExtension(const std::string& extension) { request.defaultExtension = extension; }

    /// Such as "Skin Files (*.xml)" and "*.xml". The first is chosen at first.
    void AddFilter(const std::string& name, const std::string& pattern)
    {
        request.filters.push_back({name, {pattern}});
    }

    void SetFolder(const std::string& folder) { request.folder = folder; }
    void SetFileName(const std::string& name) { request.fileName = name; }

    /// For a file that exists. False if the user gave up or nothing could be shown; the path is then empty.
    bool RunOpen() { return Run(false); }

    /// For a file to be written, with the default extension where the user gave none.
    bool RunSave() { return Run(true); }

    /// What was chosen last. Owned by the object, until the next run.
    const char* GetPath() const { return path.c_str(); }

private:
    bool Run(bool isSave);

    IDialogs& dialogs;
    CNativeRunLoop& loop;
    NativeWindowId owner;
    SFileRequest request;
    std::string path;
};

} // namespace Mirel::GUI
