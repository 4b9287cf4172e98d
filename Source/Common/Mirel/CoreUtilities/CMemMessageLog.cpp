#include "Mirel/CoreUtilities/CMemMessageLog.h"

#include <algorithm>

namespace Mirel::CoreUtilities
{

void CMemMessageLog::Post(int kind, const char* text, int verbosity)
{
    if (static_cast<std::uint32_t>(verbosity) > threshold)
    {
        return;
    }
    messages.push_back({kind, text == nullptr ? "" : text, threshold});
}

void CMemMessageLog::Clear()
{
    messages.clear();
}

void CMemMessageLog::Clear(int kind)
{
    std::erase_if(messages, [kind](const CMessage& message) { return message.kind == kind; });
}

bool CMemMessageLog::HasMessages() const
{
    return std::any_of(messages.begin(), messages.end(),
                       [this](const CMessage& message) { return message.level <= threshold; });
}

bool CMemMessageLog::HasMessages(int kind) const
{
    return std::any_of(messages.begin(), messages.end(),
                       [this, kind](const CMessage& message)
                       { return message.kind == kind && message.level <= threshold; });
}

} // namespace Mirel::CoreUtilities
