#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"

#include <string>
#include <vector>

namespace Tests
{

/// What the log holds, as "0: text" with the kind of the message, and empties it. Infos only if asked for.
inline std::vector<std::string> TakeMessages(Mirel::CoreUtilities::CMemMessageLog& log,
                                             bool withInfos = false)
{
    std::vector<std::string> taken;
    for (const auto& message : log.GetMessages())
    {
        if (withInfos || message.kind != Mirel::CoreUtilities::CMessageKind::Info)
        {
            taken.push_back(std::to_string(message.kind) + ": " + message.text);
        }
    }
    log.Clear();
    return taken;
}

} // namespace Tests
