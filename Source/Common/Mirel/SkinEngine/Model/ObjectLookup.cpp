#include "Mirel/SkinEngine/Model/ObjectLookup.h"

#include <string>

namespace Mirel::SkinEngine
{

namespace
{

void PostError(const ISkinDynamicObjectsDictionary& dictionary, const std::string& message)
{
    if (CoreUtilities::IMessageLog* log = dictionary.GetLog())
    {
        log->Post(CoreUtilities::CMessageKind::Error, message.c_str(), 0);
    }
}

std::string TextOf(const char* id)
{
    return id == nullptr ? "" : id;
}

} // namespace

void ReportUnknownObject(const ISkinDynamicObjectsDictionary& dictionary, const char* id)
{
    PostError(dictionary, TextOf(id) + ": Unknown identifier (object does not exist).");
}

void ReportWrongObjectType(const ISkinDynamicObjectsDictionary& dictionary, const char* id, const char* kind)
{
    PostError(dictionary, TextOf(id) + ": Unknown " + kind + " identifier (wrong object type).");
}

} // namespace Mirel::SkinEngine
