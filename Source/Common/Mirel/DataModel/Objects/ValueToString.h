#pragma once

#include "Mirel/DataModel/Objects/IParamValueToText.h"

#include <memory>
#include <string>

namespace Mirel::DataModel::Objects
{

/// What a converter prints for a value, as a text that frees itself.
inline std::string ValueToString(const IParamValueToText& converter, float value)
{
    char* text = nullptr;
    converter.ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? "" : text;
}

} // namespace Mirel::DataModel::Objects
