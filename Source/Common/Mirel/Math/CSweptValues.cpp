#include "Mirel/Math/CSweptValues.h"

namespace Mirel::Math
{

bool CSweptValues::Add(float time, float value)
{
    float* place = ring.Add(time);
    if (place == nullptr)
    {
        return false;
    }
    *place = value;
    return true;
}

float CSweptValues::operator()(float offset) const
{
    const auto place = ring.Find(offset);
    if (place.older == nullptr)
    {
        return defaultValue;
    }
    if (place.older == place.newer)
    {
        return *place.older;
    }
    return place.betweenThem * (*place.newer - *place.older) + *place.older;
}

bool CSweptValues::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool ok = stream.Write("version", 1);
    ok = stream.Write("defaultValue", defaultValue) && ok;
    return ring.Serialize(stream) && ok;
}

bool CSweptValues::Deserialize(const Serialization::IReadDataStream& stream)
{
    stream.Read("defaultValue", defaultValue);
    return ring.Deserialize(stream);
}

} // namespace Mirel::Math
