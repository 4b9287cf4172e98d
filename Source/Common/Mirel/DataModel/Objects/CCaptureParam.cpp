#include "Mirel/DataModel/Objects/CCaptureParam.h"

namespace Mirel::DataModel::Objects
{

void CCaptureParam::SetValue(float newValue)
{
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
