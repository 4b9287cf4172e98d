#pragma once

#include "Mirel/DataModel/Objects/IParamValueToText.h"

#include <memory>
#include <string>

namespace Tests
{

/// The text of a value, freed as a caller must.
inline std::string ValueText(const Mirel::DataModel::Objects::IParamValueToText& converter, float value)
{
    char* text = nullptr;
    converter.ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? "(null)" : text;
}

} // namespace Tests
