#include "Mirel/DataModel/Objects/LinkTransformation.h"

namespace Mirel::DataModel::Objects
{

namespace
{
constexpr SValueRange unit = {0.0f, 1.0f};
} // namespace

SValueRange GetRange(const IConstParamInfo& info)
{
    return {info.GetMin(), info.GetMax()};
}

float ClampToRange(float x, SValueRange range)
{
    if (range.min > x)
    {
        x = range.min;
    }
    return x > range.max ? range.max : x;
}

float Normalize(float x, SValueRange range)
{
    const float offset = x - range.min;
    return range.min < range.max || range.min > range.max ? offset / (range.max - range.min) : offset;
}

float Denormalize(float y, SValueRange range)
{
    return y * (range.max - range.min) + range.min;
}

float Mirror(float y, SValueRange range)
{
    return range.max - y + range.min;
}

float Transform(float x, const SLinkTransformation& transformation, SValueRange source, SValueRange target)
{
    if (!transformation.normalized)
    {
        const float y = transformation.response(x);
        return transformation.reverse ? Mirror(y, target) : y;
    }
    const float y = transformation.response(Normalize(x, source));
    return Denormalize(ClampToRange(transformation.reverse ? 1.0f - y : y, unit), target);
}

float TransformBack(float y, const SLinkTransformation& inverse, SValueRange source, SValueRange target)
{
    if (!inverse.normalized)
    {
        return inverse.response(inverse.reverse ? Mirror(y, target) : y);
    }
    const float n = Normalize(y, target);
    return Denormalize(ClampToRange(inverse.response(inverse.reverse ? 1.0f - n : n), unit), source);
}

} // namespace Mirel::DataModel::Objects
