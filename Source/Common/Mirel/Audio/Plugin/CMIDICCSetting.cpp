#include "Mirel/Audio/Plugin/CMIDICCSetting.h"

#include "Mirel/Serialization/ReadText.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace Mirel::Audio::Plugin
{

namespace
{

using namespace DataModel::Objects;

constexpr int FormatVersion = 1;
constexpr int LastChannel = 16;
constexpr int LastNumber = 127;

/// True if the value differed from what was stored. NaN differs from nothing.
template <class T>
bool Exchange(std::atomic<T>& field, T newValue)
{
    const T old = field.load(std::memory_order_relaxed);
    if (!(newValue < old || newValue > old))
    {
        return false;
    }
    field.store(newValue, std::memory_order_relaxed);
    return true;
}

/// Reads into a copy of the field, so that what is malformed leaves it, and hands it to the setter.
template <class T, class Setter>
bool ReadField(const Serialization::IReadDataStream& stream, const char* key, T present, Setter set)
{
    if (!stream.Read(key, present))
    {
        return false;
    }
    set(present);
    return true;
}

} // namespace

CMIDICCSetting::CMIDICCSetting(const IConstParamInfo& info)
{
    Exchange(min, info.GetMin());
    Exchange(max, info.GetMax());
}

CMIDICCSetting::CMIDICCSetting(const CMIDICCSetting& other) : IMIDICCSetting(other), ISerializable(other)
{
    *this = other;
}

CMIDICCSetting& CMIDICCSetting::operator=(const CMIDICCSetting& other)
{
    bool differs = Exchange(channel, other.GetChannel());
    differs = Exchange(number, other.GetNumber()) || differs;
    differs = Exchange(enabled, other.IsEnabled()) || differs;
    differs = Exchange(curve, other.GetCurve()) || differs;
    differs = Exchange(min, other.GetMin()) || differs;
    differs = Exchange(max, other.GetMax()) || differs;
    if (differs)
    {
        changed.Notify();
    }
    return *this;
}

template <class T>
void CMIDICCSetting::Set(std::atomic<T>& field, T newValue)
{
    if (Exchange(field, newValue))
    {
        changed.Notify();
    }
}

void CMIDICCSetting::SetChannel(int newChannel)
{
    Set(channel, std::clamp(newChannel, 0, LastChannel));
}

void CMIDICCSetting::SetNumber(int newNumber)
{
    Set(number, std::clamp(newNumber, 0, LastNumber));
}

void CMIDICCSetting::SetEnabled(bool newEnabled)
{
    Set(enabled, newEnabled);
}

void CMIDICCSetting::SetCurve(int code)
{
    if (GetResponseCurve(code) != nullptr)
    {
        Set(curve, code);
    }
}

void CMIDICCSetting::SetMin(float newMin)
{
    if (std::isfinite(newMin))
    {
        Set(min, newMin);
    }
}

void CMIDICCSetting::SetMax(float newMax)
{
    if (std::isfinite(newMax))
    {
        Set(max, newMax);
    }
}

float CMIDICCSetting::EvaluateCurve(float x) const
{
    return (*GetResponsePair(GetCurve()).function)(x);
}

bool CMIDICCSetting::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool written = stream.Write("channel", GetChannel());
    written = stream.Write("version", FormatVersion) && written;
    written = stream.Write("number", GetNumber()) && written;
    written = stream.Write("enabled", IsEnabled()) && written;
    if (const SResponseCurve* row = GetResponseCurve(GetCurve()))
    {
        written = stream.Write("curve", row->display) && written;
    }
    written = stream.Write("min", GetMin()) && written;
    written = stream.Write("max", GetMax()) && written;
    return written;
}

bool CMIDICCSetting::Deserialize(const Serialization::IReadDataStream& stream)
{
    bool read = ReadField(stream, "channel", GetChannel(), [this](int value) { SetChannel(value); });
    read = ReadField(stream, "number", GetNumber(), [this](int value) { SetNumber(value); }) && read;
    read = ReadField(stream, "enabled", IsEnabled(), [this](bool value) { SetEnabled(value); }) && read;
    read = DeserializeCurve(stream) && read;
    read = ReadField(stream, "min", GetMin(), [this](float value) { SetMin(value); }) && read;
    read = ReadField(stream, "max", GetMax(), [this](float value) { SetMax(value); }) && read;
    return read;
}

bool CMIDICCSetting::DeserializeCurve(const Serialization::IReadDataStream& stream)
{
    std::string name;
    int code = GetCurve();
    if (!ReadText(stream, "curve", name) || !ResponseCodeFromDisplay(name.c_str(), code))
    {
        return false;
    }
    SetCurve(code);
    return true;
}

} // namespace Mirel::Audio::Plugin
