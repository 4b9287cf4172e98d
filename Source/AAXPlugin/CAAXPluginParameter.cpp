#include "AAXPlugin/CAAXPluginParameter.h"

#include "AAXPlugin/AAXExtAutomationDelegate.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

#include <cmath>

namespace MirelExt::AAXPlugin
{

using namespace Mirel::DataModel::Objects;

namespace
{

constexpr int NoSteps = -1;

bool Differ(float a, float b)
{
    return a < b || a > b;
}

std::string NameOf(const IConstParamInfo& info, std::string_view prefix)
{
    const char* name = info.GetName();
    return std::string(prefix) + (name != nullptr ? name : "");
}

} // namespace

int StepCountOf(const IConstParamInfo& info)
{
    switch (info.GetType())
    {
    case ValueKindBoolean:
    case ValueKindSwitch:
        return 2;
    case ValueKindInteger:
        return Mirel::Core::TruncateToInt32(
            std::abs(static_cast<double>(info.GetMax()) - static_cast<double>(info.GetMin())) + 1.0 + 0.5);
    default:
        return NoSteps;
    }
}

CAAXPluginParameter::CAAXPluginParameter(std::string identifier_, const IConstParamInfo& info,
                                         std::string_view prefix, Mirel::Core::TIValue<float>& value_)
    : identifier(std::move(identifier_)),
      name(NameOf(info, prefix)),
      taper(info.GetMin(), info.GetMax()),
      display(&info.GetValueToText()),
      defaultValue(info.GetDefault()),
      continuous(!IsWholeValueKind(info.GetType())),
      stepCount(StepCountOf(info)),
      value(value_),
      requested(value_.GetValue())
{
}

void CAAXPluginParameter::SetValue(float newValue)
{
    const float clamped = taper.Clamp(newValue);
    if (std::isnan(clamped))
    {
        return;
    }
    requested.store(clamped, std::memory_order_relaxed);
    if (!Differ(clamped, value.GetValue()))
    {
        return;
    }
    value.SetValue(clamped);
    if (listener)
    {
        listener();
    }
}

void CAAXPluginParameter::PostValue(float newValue)
{
    const float clamped = taper.Clamp(newValue);
    if (std::isnan(clamped) || !Differ(clamped, requested.exchange(clamped, std::memory_order_relaxed)))
    {
        return;
    }
    const bool ownGesture = automation != nullptr && !touched.load(std::memory_order_relaxed);
    if (ownGesture)
    {
        automation->Touch(identifier.c_str());
    }
    if (automation == nullptr || !automation->Post(identifier.c_str(), taper.ToNormalized(clamped)))
    {
        SetValue(clamped);
    }
    if (ownGesture)
    {
        automation->Release(identifier.c_str());
    }
}

void CAAXPluginParameter::Touch()
{
    if (!touched.exchange(true, std::memory_order_relaxed) && automation != nullptr)
    {
        automation->Touch(identifier.c_str());
    }
}

void CAAXPluginParameter::Release()
{
    if (touched.exchange(false, std::memory_order_relaxed) && automation != nullptr)
    {
        automation->Release(identifier.c_str());
    }
}

} // namespace MirelExt::AAXPlugin
