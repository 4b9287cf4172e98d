#include "AAXPlugin/Interface/AAX_CEffectGUI.h"

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/QueryFor.h"

std::int32_t AAX_CEffectGUI::Initialize(IACFUnknown* host)
{
    if (parameters)
    {
        return AAXResult::Failed;
    }
    parameters = QueryFor<AAX_IEffectParameters>(host);
    return parameters ? AAXResult::Ok : AAXResult::Failed;
}

std::int32_t AAX_CEffectGUI::Uninitialize()
{
    SetViewContainer(nullptr);
    parameters = {};
    return AAXResult::Ok;
}

std::int32_t AAX_CEffectGUI::SetViewContainer(IACFUnknown* container)
{
    if (viewContainer)
    {
        DeleteViewContents();
    }
    viewContainer = AAX_VViewContainer(container);
    if (viewContainer.GetView() != 0)
    {
        CreateViewContents();
    }
    return AAXResult::Ok;
}

std::int32_t AAX_CEffectGUI::GetViewSize(SAAXViewSize* size)
{
    if (size == nullptr)
    {
        return AAXResult::Failed;
    }
    *size = {};
    return AAXResult::Ok;
}

std::int32_t AAX_CEffectGUI::TimerWakeup()
{
    return AAXResult::Ok;
}
