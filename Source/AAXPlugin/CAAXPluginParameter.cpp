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
    float clamped = 0.0F;
    if (Request(newValue, clamped))
    {
        PostInGesture(clamped);
    }
}

void CAAXPluginParameter::Touch()
{
    if (!touched.exchange(true, std::memory_order_relaxed))
    {
        BeginGesture();
    }
}

void CAAXPluginParameter::Release()
{
    if (touched.exchange(false, std::memory_order_relaxed))
    {
        EndGesture();
    }
}

void CAAXPluginParameter::PostValueOfAudio(float newValue)
{
    float clamped = 0.0F;
    if (!Request(newValue, clamped))
    {
        return;
    }
    if (!turns.TryForAudio())
    {
        deferred = clamped;
        // Whoever had the turn may have ended it before.
        if (!turns.TryForAudio())
        {
            return;
        }
        clamped = deferred.exchange(none);
    }
    if (!std::isnan(clamped))
    {
        const bool ownGesture = gestures == 0;
        if (ownGesture)
        {
            TellTouch();
        }
        Post(clamped);
        if (ownGesture)
        {
            TellRelease();
        }
    }
    turns.EndOfAudio();
}

bool CAAXPluginParameter::Request(float newValue, float& clamped)
{
    clamped = taper.Clamp(newValue);
    return !std::isnan(clamped) && Differ(clamped, requested.exchange(clamped, std::memory_order_relaxed));
}

void CAAXPluginParameter::Post(float clamped)
{
    if (automation == nullptr || !automation->Post(identifier.c_str(), taper.ToNormalized(clamped)))
    {
        SetValue(clamped);
    }
}

void CAAXPluginParameter::PostInGesture(float clamped)
{
    BeginGesture();
    Post(clamped);
    EndGesture();
}

void CAAXPluginParameter::TellTouch()
{
    if (automation != nullptr)
    {
        automation->Touch(identifier.c_str());
    }
}

void CAAXPluginParameter::TellRelease()
{
    if (automation != nullptr)
    {
        automation->Release(identifier.c_str());
    }
}

void CAAXPluginParameter::BeginGesture()
{
    turns.Begin();
    if (gestures++ == 0)
    {
        TellTouch();
    }
    EndTurn();
}

void CAAXPluginParameter::EndGesture()
{
    turns.Begin();
    if (--gestures == 0)
    {
        TellRelease();
    }
    EndTurn();
}

void CAAXPluginParameter::EndTurn()
{
    turns.End();
    const float left = deferred.exchange(none);
    const bool isLatest = !Differ(left, requested.load(std::memory_order_relaxed));
    if (!std::isnan(left) && isLatest)
    {
        PostInGesture(left);
    }
}

} // namespace MirelExt::AAXPlugin
