#pragma once

#include "Host/Editor/CHostEditor.h"
#include "Host/Run/CRunOptions.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace Host
{

/// Pictures of an instance's editor, taken without a screen at times of a run. One thread only.
class CSnapshots
{
public:
    /// Opens the editor with the skin and size that the options ask for; the skin's warnings and errors go to
    /// `messages`. False with one line in `error`.
    bool Open(CHostInstance& instance, const CRunOptions& options, std::ostream& messages,
              std::string& error);

    /// Lets the editor catch up with the instance and paints it into the file. False with one line in
    /// `error`.
    bool Take(const std::string& path, std::string& error);

    /// The name of the picture at a time, beside that of the end: "scope.png" at 1.5 is "scope-1.5s.png".
    static std::string NameAt(const std::string& path, double seconds);

private:
    std::unique_ptr<CHostEditor> editor;
};

/// Writes those of a skin's messages that an author must see: warnings and errors, a line each.
void PrintSkinMessages(const CHostEditor& editor, std::ostream& out);

} // namespace Host
