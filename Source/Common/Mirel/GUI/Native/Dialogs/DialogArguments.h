#pragma once

#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <optional>
#include <string>
#include <vector>

namespace Mirel::GUI
{

/// The two programs that desktops bring for asking the user.
enum class EDialogHelper
{
    Zenity,
    KDialog
};

/// The arguments that make the helper show a message, its path first. Texts are shown as they are: what the
/// helper would read as markup or an escape is written so that it shows. A text too long for a window is cut.
std::vector<std::string> MessageArguments(EDialogHelper helper, const std::string& path,
                                          const SMessage& message, NativeWindowId owner);

/// The same for the choice of a file.
std::vector<std::string> FileArguments(EDialogHelper helper, const std::string& path,
                                       const SFileRequest& request, NativeWindowId owner);

/// What the user meant by the helper's exit code (-1 if unknown) and output.
EMessageAnswer AnswerOf(EDialogHelper helper, EMessageButtons buttons, int exitCode,
                        const std::string& output);

/// The chosen path in the helper's output, without the newline at its end.
std::string PathOf(int exitCode, const std::string& output);

/// The path with the extension, if there is one to add and its file name has none.
std::string AddExtension(const std::string& path, const std::string& extension);

} // namespace Mirel::GUI
