#include "Mirel/DataModel/Objects/EValueKind.h"

#include <string_view>

namespace Mirel::DataModel::Objects
{

EValueKind ValueKindFromName(const char* name)
{
    const std::string_view text = name == nullptr ? "" : name;
    if (text == "boolean")
    {
        return ValueKindBoolean;
    }
    if (text == "integer" || text == "enumeration")
    {
        return ValueKindInteger;
    }
    return ValueKindReal;
}

bool IsWholeValueKind(int kind)
{
    return kind == ValueKindBoolean || kind == ValueKindInteger || kind == ValueKindSwitch;
}

} // namespace Mirel::DataModel::Objects
