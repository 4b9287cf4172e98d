#include "Mirel/SkinEngine/Language/MessagePresentation.h"

namespace Mirel::SkinEngine
{

namespace
{

using CoreUtilities::CMemMessageLog;
using CoreUtilities::CMessageKind;

struct CShown
{
    bool errors;
    bool warnings;
    bool infos;
};

bool IsShown(int kind, const CShown& shown)
{
    switch (kind)
    {
    case CMessageKind::Error:
        return shown.errors;
    case CMessageKind::Warning:
        return shown.warnings;
    default:
        return kind == CMessageKind::Info && shown.infos;
    }
}

std::string Lines(const CMemMessageLog& log, const CShown& shown)
{
    std::string lines;
    for (const CMemMessageLog::CMessage& message : log.GetMessages())
    {
        if (message.level <= log.GetThreshold() && IsShown(message.kind, shown))
        {
            lines.append("\n- ")
                .append(CMessageKind::GetName(message.kind))
                .append(": ")
                .append(message.text);
        }
    }
    return lines;
}

} // namespace

CMessagePresentation PresentMessages(CMemMessageLog& log, bool showInfo, bool showWarnings)
{
    if (log.HasMessages(CMessageKind::Error))
    {
        return {"Skin Parsing Error",
                "There were errors while parsing the skin:" + Lines(log, {true, showWarnings, showInfo})};
    }
    if (showWarnings && log.HasMessages(CMessageKind::Warning))
    {
        return {"Skin Parsing Warning",
                "There were warnings while parsing the skin:" + Lines(log, {false, true, showInfo})};
    }
    log.Post(CMessageKind::Info, "Skin parsing successful", 0);
    if (!showInfo)
    {
        return {};
    }
    return {"Skin Parsing Info",
            "Information logged during skin parsing:" + Lines(log, {false, false, true})};
}

} // namespace Mirel::SkinEngine
