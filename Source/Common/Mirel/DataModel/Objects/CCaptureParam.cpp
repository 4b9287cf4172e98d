#include "Mirel/DataModel/Objects/CCaptureParam.h"

#include "Mirel/Core/CLateDestruction.h"

namespace Mirel::DataModel::Objects
{

void CCaptureParam::SetValue(float newValue)
{
    const Core::CLateDestruction stayAlive;
    if (info.GetMin() > newValue)
    {
        newValue = info.GetMin();
    }
    if (newValue > info.GetMax())
    {
        newValue = info.GetMax();
    }
    if (newValue < value || newValue > value)
    {
        value = newValue;
        NotifyChanged();
    }
    set.Notify();
}

} // namespace Mirel::DataModel::Objects
