#include "Mirel/DataModel/Objects/CMultipleCaptureParamLink.h"

#include "Mirel/DataModel/Objects/LinkTransformation.h"

#include <algorithm>

namespace Mirel::DataModel::Objects
{

void CMultipleCaptureParamLink::UpdateFrom(const IConstCaptureParam* changedSource)
{
    if (!IsTriggeredBy(changedSource))
    {
        return;
    }
    const float combined = CombineSources();
    ForEachTarget(changedSource,
                  [this, combined](ICaptureParam& target)
                  {
                      if (!PassesTrigger(target.GetValue()))
                      {
                          return;
                      }
                      const SValueRange range = GetRange(target.GetInfo());
                      if (normalized)
                      {
                          target.SetValue(Denormalize(reverse ? 1.0f - combined : combined, range));
                      }
                      else
                      {
                          target.SetValue(reverse ? Mirror(combined, range) : combined);
                      }
                  });
}

void CMultipleCaptureParamLink::SetTrigger(std::optional<float>& field, std::optional<float> newValue)
{
    const bool moved = field && newValue && (*field < *newValue || *field > *newValue);
    if (moved || field.has_value() != newValue.has_value())
    {
        field = newValue;
        ApplySettings();
    }
}

bool CMultipleCaptureParamLink::IsTriggeredBy(const IConstCaptureParam* changedSource) const
{
    if (changedSource != nullptr)
    {
        return PassesTrigger(changedSource->GetValue());
    }
    return std::any_of(GetSources().begin(), GetSources().end(),
                       [this](const IConstCaptureParam* source)
                       { return PassesTrigger(source->GetValue()); });
}

bool CMultipleCaptureParamLink::PassesTrigger(float value) const
{
    return !(triggerMin && value < *triggerMin) && !(triggerMax && value > *triggerMax);
}

float CMultipleCaptureParamLink::CombineSources()
{
    values.clear();
    for (const IConstCaptureParam* source : GetSources())
    {
        const float value = source->GetValue();
        values.push_back(normalized ? Normalize(value, GetRange(source->GetInfo())) : value);
    }
    return CombineValues(function, values, normalized);
}

} // namespace Mirel::DataModel::Objects
