#include "Mirel/DataModel/Objects/CCaptureParamTimeLink.h"

#include "Mirel/DataModel/Objects/LinkTransformation.h"

namespace Mirel::DataModel::Objects
{

bool CCaptureParamTimeLink::Prepare(const IConstCaptureParam& source, const ICaptureParam& target)
{
    startValue = target.GetValue();
    endValue = ClampToRange(source.GetValue(), GetRange(target.GetInfo()));
    return startValue < endValue || startValue > endValue;
}

bool CCaptureParamTimeLink::Step(ICaptureParam& target, double fraction)
{
    const float value = target.GetValue();
    if (!(value < endValue || value > endValue))
    {
        return true;
    }
    // The sum may miss the end by its rounding, which the last step must not.
    const auto part = static_cast<float>(fraction);
    target.SetValue(fraction < 1.0 ? part * (endValue - startValue) + startValue : endValue);
    return false;
}

} // namespace Mirel::DataModel::Objects
