#include "Mirel/DataModel/Objects/CConstantToCaptureParamAdapter.h"

#include "Mirel/Core/CLateDestruction.h"

namespace Mirel::DataModel::Objects
{

CConstantToCaptureParamAdapter::CConstantToCaptureParamAdapter(const IConstParamInfo& info_,
                                                               const Math::IConstant* constant_, bool owned)
    : info(info_),
      constant(constant_, owned),
      value(Evaluate())
{
}

void CConstantToCaptureParamAdapter::SetConstant(const Math::IConstant* newConstant, bool owned)
{
    constant.Set(newConstant, owned);
    Update();
}

void CConstantToCaptureParamAdapter::Update()
{
    const Core::CLateDestruction stayAlive;
    const float newValue = Evaluate();
    if (newValue < value || newValue > value)
    {
        value = newValue;
        capture.NotifyChanged();
    }
    set.Notify();
}

} // namespace Mirel::DataModel::Objects
