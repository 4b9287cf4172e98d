#pragma once

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"

#include <string>
#include <vector>

namespace Tests
{

/// A description of a parameter of that kind and range.
inline Mirel::DataModel::Objects::CParamInfo ParamInfo(int type, float min, float max, float defaultValue,
                                                       const char* name = "Name")
{
    return {type, min, max, defaultValue, name, "", ""};
}

} // namespace Tests
