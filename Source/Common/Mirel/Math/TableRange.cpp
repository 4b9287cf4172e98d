#include "Mirel/Math/TableRange.h"

#include "Mirel/Serialization/Limits.h"

#include <cmath>

namespace Mirel::Math
{

bool WriteTableRange(Serialization::IWriteDataStream& stream, float xMin, float xMax)
{
    const bool ok = stream.Write("xMin", xMin);
    return stream.Write("xMax", xMax) && ok;
}

bool ReadTableRange(const Serialization::IReadDataStream& stream, float& xMin, float& xMax)
{
    float low = 0.0f;
    float high = 0.0f;
    if (!stream.Read("xMin", low) || !stream.Read("xMax", high))
    {
        return false;
    }
    // A table turns x into a position by (size - 1) / (xMax - xMin). Neither may overflow, or a position is
    // no number and indexes what is not the table's.
    const float length = high - low;
    const bool isRange = length > 0.0f && std::isfinite(length) &&
                         std::isfinite(static_cast<float>(Serialization::CLimits::maxItems) / length);
    if (isRange)
    {
        xMin = low;
        xMax = high;
    }
    return isRange;
}

} // namespace Mirel::Math
