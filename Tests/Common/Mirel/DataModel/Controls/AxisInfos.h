#pragma once

#include "Mirel/DataModel/Objects/CParamInfo.h"

namespace Tests
{

inline Mirel::DataModel::Objects::CParamInfo Real(float min, float max, float defaultValue = 0.0F)
{
    return {2, min, max, defaultValue, "", "", ""};
}

inline Mirel::DataModel::Objects::CParamInfo Integer(float min, float max, float defaultValue = 0.0F)
{
    return {1, min, max, defaultValue, "", "", ""};
}

/// kind: 0 or 3.
inline Mirel::DataModel::Objects::CParamInfo TwoState(int kind, float min, float max)
{
    return {kind, min, max, min, "", "", ""};
}

} // namespace Tests
