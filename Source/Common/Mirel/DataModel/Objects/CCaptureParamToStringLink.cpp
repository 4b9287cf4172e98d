#include "Mirel/DataModel/Objects/CCaptureParamToStringLink.h"

#include "Mirel/DataModel/Objects/ValueToString.h"

namespace Mirel::DataModel::Objects
{

void CCaptureParamToStringLink::Update()
{
    if (GetSource() == nullptr || GetTarget() == nullptr)
    {
        return;
    }
    if (!IsConnected())
    {
        TakeSourceInfo();
    }
    GetTarget()->SetValue(ValueToString(converter, GetSource()->GetValue()).c_str());
}

void CCaptureParamToStringLink::OnConnected()
{
    sourceInfo.emplace(&GetSource()->GetInfo().GetChangedEventProvider(), &sourceInfoChanged);
    TakeSourceInfo();
}

void CCaptureParamToStringLink::OnSourceInfoChanged()
{
    TakeSourceInfo();
    Update();
}

void CCaptureParamToStringLink::OnConverterChanged()
{
    if (!takingSourceInfo)
    {
        ApplySettings();
    }
}

// The text that this makes another is for the caller to hand on.
void CCaptureParamToStringLink::TakeSourceInfo()
{
    takingSourceInfo = true;
    converter.SetParamInfo(GetSource()->GetInfo());
    takingSourceInfo = false;
}

} // namespace Mirel::DataModel::Objects
