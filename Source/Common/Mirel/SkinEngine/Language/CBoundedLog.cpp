#include "Mirel/SkinEngine/Language/CBoundedLog.h"

#include "Mirel/SkinEngine/Limits.h"

#include <cstring>

namespace Mirel::SkinEngine
{

void CBoundedLog::Post(int kind, const char* text, int verbosity)
{
    if (posted > CLimits::maxMessageBytes)
    {
        return;
    }
    // What a log keeps beside the text.
    constexpr std::size_t recordBytes = 64;
    posted += std::strlen(text) + recordBytes;
    if (posted > CLimits::maxMessageBytes)
    {
        target->Post(CoreUtilities::CMessageKind::Error, "Too many messages: the others are not shown", 0);
        return;
    }
    target->Post(kind, text, verbosity);
}

} // namespace Mirel::SkinEngine
