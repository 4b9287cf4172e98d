#include "Mirel/Math/CSweptCurvesFunction.h"

namespace Mirel::Math
{

bool CSweptCurvesFunction::Add(float time, const IFunction& curve)
{
    TFunctionHolder<IFunction>* place = ring.Add(time);
    if (place == nullptr)
    {
        return false;
    }
    place->Set(curve.Clone(), true);
    return true;
}

float CSweptCurvesFunction::EvaluateDefault(float x) const
{
    return defaultFunction.Get() == nullptr ? 0.0f : (*defaultFunction)(x);
}

float CSweptCurvesFunction::Evaluate(const TFunctionHolder<IFunction>& curve, float x) const
{
    return curve.Get() == nullptr ? EvaluateDefault(x) : (*curve)(x);
}

float CSweptCurvesFunction::operator()(float offset, float x) const
{
    const auto place = ring.Find(offset);
    if (place.older == nullptr)
    {
        return EvaluateDefault(x);
    }
    const float older = Evaluate(*place.older, x);
    if (place.older == place.newer)
    {
        return older;
    }
    return place.betweenThem * (Evaluate(*place.newer, x) - older) + older;
}

bool CSweptCurvesFunction::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool ok = stream.Write("version", 1);
    ok = Serialization::WriteItem(stream, "defaultValue", defaultFunction) && ok;
    return ring.Serialize(stream) && ok;
}

bool CSweptCurvesFunction::Deserialize(const Serialization::IReadDataStream& stream)
{
    Serialization::ReadItem(stream, "defaultValue", defaultFunction);
    return ring.Deserialize(stream);
}

} // namespace Mirel::Math
