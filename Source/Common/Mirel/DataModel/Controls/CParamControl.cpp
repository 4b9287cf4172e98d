#include "Mirel/DataModel/Controls/CParamControl.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Mirel::DataModel::Controls
{

CParamControl::CParamControl(Objects::ICaptureParam& param_)
    : CBaseParamViewer(param_),
      param(param_),
      edit(param_)
{
}

void CParamControl::SetPosition(float newPosition)
{
    if (IsEditable() && !std::isnan(newPosition))
    {
        param.SetValue(PositionToValue(ClampPosition(newPosition)));
    }
}

void CParamControl::SetValue(float newValue)
{
    if (IsEditable() && !std::isnan(newValue))
    {
        param.SetValue(newValue);
    }
}

void CParamControl::SetDefault()
{
    if (IsEditable())
    {
        param.SetValue(GetInfo().GetDefault());
    }
}

void CParamControl::SetFineMode(bool newFineMode)
{
    if (fineMode == newFineMode)
    {
        return;
    }
    const int count = GetStoredPositionsCount();
    if (count == continuous)
    {
        fineMode = newFineMode;
    }
    else if (newFineMode)
    {
        fineMode = RefineStops();
    }
    else
    {
        fineMode = false;
        SetPositionsCount((count - 1) / fineRatio + 1);
    }
}

void CParamControl::SetFineRatio(int newFineRatio)
{
    newFineRatio = std::max(newFineRatio, 1);
    if (newFineRatio == fineRatio)
    {
        return;
    }
    const bool wasFine = fineMode;
    SetFineMode(false);
    fineRatio = newFineRatio;
    SetFineMode(wasFine);
}

/// Refused, the axis is as it was and nobody has been told of the attempt.
bool CParamControl::RefineStops()
{
    const int count = GetStoredPositionsCount();
    const std::int64_t wanted = static_cast<std::int64_t>(count - 1) * fineRatio + 1;
    if (wanted > std::numeric_limits<int>::max())
    {
        return false;
    }
    const bool changed = StorePositionsCount(static_cast<int>(wanted));
    if (GetStoredPositionsCount() != wanted)
    {
        StorePositionsCount(count);
        return false;
    }
    if (changed)
    {
        NotifyLayoutChanged();
    }
    return true;
}

} // namespace Mirel::DataModel::Controls
