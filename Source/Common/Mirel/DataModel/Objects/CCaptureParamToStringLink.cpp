#include "Mirel/DataModel/Objects/CCaptureParamToStringLink.h"

#include <memory>

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
    char* text = nullptr;
    converter.ToText(GetSource()->GetValue(), text);
    const std::unique_ptr<char[]> owner(text);
    GetTarget()->SetValue(text);
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
