#include "Mirel/Audio/Plugin/CParamValue.h"

#include <cmath>

namespace Mirel::Audio::Plugin
{

void SetWithinRange(Core::TIValue<float>& param, const DataModel::Objects::IConstParamInfo& info, float value)
{
    if (!std::isnan(value))
    {
        param.SetValue(ClampToRange(value, info.GetMin(), info.GetMax()));
    }
}

CParamValue::CParamValue(const DataModel::Objects::IConstParamInfo& info)
    : min(info.GetMin()),
      max(info.GetMax()),
      value(info.GetDefault())
{
}

void CParamValue::SetValue(float newValue)
{
    if (!std::isnan(newValue))
    {
        value.store(ClampToRange(newValue, min, max), std::memory_order_relaxed);
    }
}

} // namespace Mirel::Audio::Plugin
