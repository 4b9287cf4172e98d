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

std::string Lines(const CMemMessageLog& log, const CShown& shown)
{
    std::string lines;
    for (const CMemMessageLog::CMessage& message : log.GetMessages())
    {
        const char* prefix = nullptr;
        if (message.level > log.GetThreshold())
        {
            continue;
        }
        if (message.kind == CMessageKind::Error && shown.errors)
        {
            prefix = "error: ";
        }
        else if (message.kind == CMessageKind::Warning && shown.warnings)
        {
            prefix = "warning: ";
        }
        else if (message.kind == CMessageKind::Info && shown.infos)
        {
            prefix = "info: ";
        }
        if (prefix != nullptr)
        {
            lines.append("\n- ").append(prefix).append(message.text);
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
