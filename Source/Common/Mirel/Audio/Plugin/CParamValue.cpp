#include "Mirel/Audio/Plugin/CParamValue.h"

#include <cmath>

namespace Mirel::Audio::Plugin
{

CParamValue::CParamValue(const DataModel::Objects::IConstParamInfo& info)
    : min(info.GetMin()),
      max(info.GetMax()),
      value(info.GetDefault())
{
}

void CParamValue::SetValue(float newValue)
{
    if (std::isnan(newValue))
    {
        return;
    }
    if (min > newValue)
    {
        newValue = min;
    }
    if (newValue > max)
    {
        newValue = max;
    }
    value.store(newValue, std::memory_order_relaxed);
}

} // namespace Mirel::Audio::Plugin
