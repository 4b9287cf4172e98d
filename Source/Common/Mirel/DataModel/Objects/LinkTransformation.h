#pragma once

#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Objects
{

/// The arithmetic of the links between parameters, free of events.

struct SValueRange
{
    float min;
    float max;
};

SValueRange GetRange(const IConstParamInfo& info);

/// The maximum wins where it lies below the minimum. Leaves NaN.
float ClampToRange(float x, SValueRange range);

/// (x - min) / (max - min); x - min in a range without width.
float Normalize(float x, SValueRange range);

/// y * (max - min) + min.
float Denormalize(float y, SValueRange range);

/// max - y + min.
float Mirror(float y, SValueRange range);

/// How a link turns a value of its source into one of its target.
struct SLinkTransformation
{
    const Math::IFunction& response;
    bool reverse;

    /// Response and reversal work on positions from 0 to 1, and the result is clamped to the target's range;
    /// otherwise they work on the values and nothing is clamped.
    bool normalized;
};

/// The response first, then the reversal. NaN gives whatever the response makes of it.
float Transform(float x, const SLinkTransformation& transformation, SValueRange source, SValueRange target);

/// The way back from the target to the source, the reversal first: with the inverse of the response it undoes
/// Transform, within what clamping has left.
float TransformBack(float y, const SLinkTransformation& inverse, SValueRange source, SValueRange target);

} // namespace Mirel::DataModel::Objects
