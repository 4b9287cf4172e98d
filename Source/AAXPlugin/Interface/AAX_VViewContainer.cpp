#include "AAXPlugin/Interface/AAX_VViewContainer.h"

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/QueryFor.h"

AAX_VViewContainer::AAX_VViewContainer(IACFUnknown* host) : container(QueryFor<IAAXViewContainer>(host)) {}

std::int32_t AAX_VViewContainer::GetType() const
{
    std::int32_t type = AAXViewType::None;
    const bool known = GetView() != 0 && container->GetType(&type) == AAXResult::Ok;
    return known ? type : AAXViewType::None;
}

std::uintptr_t AAX_VViewContainer::GetView() const
{
    std::uintptr_t view = 0;
    return container && container->GetView(&view) == AAXResult::Ok ? view : 0;
}

std::int32_t AAX_VViewContainer::SetViewSize(const SAAXViewSize& size)
{
    return container ? container->SetViewSize(&size) : AAXResult::Failed;
}

std::int32_t AAX_VViewContainer::HandleParameterRightClick(const char* parameterId)
{
    return container ? container->HandleParameterRightClick(parameterId) : AAXResult::Failed;
}
