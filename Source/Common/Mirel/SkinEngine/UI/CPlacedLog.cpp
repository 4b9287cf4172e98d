#include "Mirel/SkinEngine/UI/CPlacedLog.h"

#include "Mirel/SkinEngine/Language/CSkinParser.h"

namespace Mirel::SkinEngine
{

void CPlacedLog::Post(int kind, const char* text, int verbosity)
{
    SSkinMessage message{kind, {}, text == nullptr ? "" : text};
    if (parser != nullptr && parser->GetCurrentLine() > 0)
    {
        message.place = parser->GetCurrentFile() + ":" + std::to_string(parser->GetCurrentLine());
    }
    messages.push_back(std::move(message));
    target.Post(kind, text, verbosity);
}

} // namespace Mirel::SkinEngine
