#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"

#include <string>

namespace Mirel::SkinEngine
{

/// A message box: nothing is shown where the text is empty.
struct CMessagePresentation
{
    std::string title;
    std::string text;
};

/// What to show the author of a skin after a parse. Errors are always shown; infos and warnings as the skin's
/// options show_info and show_warnings ask. Posts "Skin parsing successful" to the log if there was neither
/// an error nor a warning to show.
CMessagePresentation PresentMessages(CoreUtilities::CMemMessageLog& log, bool showInfo, bool showWarnings);

} // namespace Mirel::SkinEngine
