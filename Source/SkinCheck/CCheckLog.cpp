#include "SkinCheck/CCheckLog.h"

#include "Mirel/SkinEngine/Language/CSkinParser.h"

#include <algorithm>

namespace SkinCheck
{

using Mirel::CoreUtilities::CMessageKind;

void CCheckLog::Post(int kind, const char* text, int)
{
    SCheckMessage message{kind, text == nullptr ? "" : text, "", 0};
    if (parser != nullptr)
    {
        message.file = parser->GetCurrentFile();
        message.line = parser->GetCurrentLine();
    }
    messages.push_back(std::move(message));
}

int CCheckLog::GetSeverity() const
{
    int severity = 0;
    for (const SCheckMessage& message : messages)
    {
        if (message.kind == CMessageKind::Error || message.kind == CMessageKind::Warning)
        {
            severity = std::max(severity, message.kind == CMessageKind::Error ? 2 : 1);
        }
    }
    return severity;
}

} // namespace SkinCheck
