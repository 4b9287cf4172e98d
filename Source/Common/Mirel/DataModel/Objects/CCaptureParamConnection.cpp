#include "Mirel/DataModel/Objects/CCaptureParamConnection.h"

#include <utility>

namespace Mirel::DataModel::Objects
{

CCaptureParamConnection::~CCaptureParamConnection()
{
    CutConnections();
    ForwardEnd(first, second);
    ForwardEnd(second, first);
}

void CCaptureParamConnection::SetResponse(SResponsePair newResponse)
{
    if (response.function != newResponse.function || response.inverse != newResponse.inverse)
    {
        response = newResponse;
        ApplySettings();
    }
}

void CCaptureParamConnection::Enable(bool enable)
{
    if (enabled == enable)
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    enabled = enable;
    if (enable)
    {
        Connect();
    }
    else
    {
        Disconnect();
    }
    if (watch.IsAlive())
    {
        changed.Notify();
    }
}

void CCaptureParamConnection::Exchange(SSide& side, ICaptureParam* param)
{
    if (side.param == param)
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    Disconnect();
    if (watch.IsAlive())
    {
        side.param = param;
        Connect();
    }
}

void CCaptureParamConnection::SetFlag(bool& flag, bool newValue)
{
    if (flag != newValue)
    {
        flag = newValue;
        ApplySettings();
    }
}

void CCaptureParamConnection::ApplySettings()
{
    const Core::CLifeToken::CWatch watch(life);
    if (connected)
    {
        RunUpdate(first, second);
    }
    if (watch.IsAlive())
    {
        changed.Notify();
    }
}

void CCaptureParamConnection::Connect()
{
    if (connected || !enabled || first.param == nullptr || second.param == nullptr)
    {
        return;
    }
    connected = true;
    first.param->GetValueChangedEventProvider().Connect(firstChanged);
    first.param->GetBeginCaptureEventProvider().Connect(firstBegun);
    first.param->GetEndCaptureEventProvider().Connect(firstEnded);
    second.param->GetValueChangedEventProvider().Connect(secondChanged);
    second.param->GetBeginCaptureEventProvider().Connect(secondBegun);
    second.param->GetEndCaptureEventProvider().Connect(secondEnded);

    const Core::CLifeToken::CWatch watch(life);
    if (first.param->IsCaptured())
    {
        ForwardBegin(first, second);
    }
    else if (second.param->IsCaptured())
    {
        ForwardBegin(second, first);
    }
    if (watch.IsAlive() && connected)
    {
        RunUpdate(first, second);
    }
}

void CCaptureParamConnection::Disconnect()
{
    CutConnections();
    const Core::CLifeToken::CWatch watch(life);
    ForwardEnd(first, second);
    if (watch.IsAlive())
    {
        ForwardEnd(second, first);
    }
}

void CCaptureParamConnection::CutConnections()
{
    if (!std::exchange(connected, false))
    {
        return;
    }
    first.param->GetValueChangedEventProvider().Disconnect(&firstChanged);
    first.param->GetBeginCaptureEventProvider().Disconnect(&firstBegun);
    first.param->GetEndCaptureEventProvider().Disconnect(&firstEnded);
    second.param->GetValueChangedEventProvider().Disconnect(&secondChanged);
    second.param->GetBeginCaptureEventProvider().Disconnect(&secondBegun);
    second.param->GetEndCaptureEventProvider().Disconnect(&secondEnded);
}

void CCaptureParamConnection::RunUpdate(SSide& from, SSide& to)
{
    const CCascadeShare::CUpdate update(cascadeShare);
    if (update.IsAllowed())
    {
        UpdateFrom(from, to);
    }
}

void CCaptureParamConnection::UpdateFrom(SSide& from, SSide& to)
{
    if (from.param == nullptr || to.param == nullptr)
    {
        return;
    }
    const bool stopsEcho = !allowsFeedback || diff;
    if (stopsEcho && updating > 0)
    {
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    ++updating;
    WriteOther(from, to);
    if (!watch.IsAlive())
    {
        return;
    }
    // A listener may have taken a side away.
    if (first.param != nullptr && second.param != nullptr)
    {
        first.last = first.param->GetValue();
        second.last = second.param->GetValue();
    }
    --updating;
}

void CCaptureParamConnection::WriteOther(SSide& from, SSide& to)
{
    const float value = TransformFrom(from, from.param->GetValue());
    if (diff)
    {
        to.param->SetValue(to.param->GetValue() + value - TransformFrom(from, from.last));
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    to.param->SetValue(value);
    if (!watch.IsAlive() || from.param == nullptr || to.param == nullptr)
    {
        return;
    }
    const float taken = to.param->GetValue();
    const bool clamped = taken < value || taken > value;
    if (clamped && allowsFeedback && updating < 2)
    {
        UpdateFrom(to, from);
    }
}

float CCaptureParamConnection::TransformFrom(const SSide& from, float value) const
{
    const SValueRange firstRange = GetRange(first.param->GetInfo());
    const SValueRange secondRange = GetRange(second.param->GetInfo());
    return &from == &first
               ? Transform(value, {*response.function, reverse, normalized}, firstRange, secondRange)
               : TransformBack(value, {*response.inverse, reverse, normalized}, firstRange, secondRange);
}

void CCaptureParamConnection::ForwardBegin(SSide& from, const SSide& to)
{
    if (!to.forwarded)
    {
        from.forwarded = true;
        to.param->BeginCapture();
    }
}

void CCaptureParamConnection::ForwardEnd(SSide& from, const SSide& to)
{
    if (std::exchange(from.forwarded, false))
    {
        to.param->EndCapture();
    }
}

} // namespace Mirel::DataModel::Objects
