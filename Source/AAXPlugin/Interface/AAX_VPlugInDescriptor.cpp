#include "AAXPlugin/Interface/AAX_VPlugInDescriptor.h"

#include "AAXPlugin/Interface/AAXResults.h"

AAX_VPlugInDescriptor::AAX_VPlugInDescriptor(TACFReference<IAAXEffectDescriptor> descriptor_)
    : descriptor(std::move(descriptor_))
{
}

std::int32_t AAX_VPlugInDescriptor::AddName(const AAX_CString& name)
{
    return descriptor ? descriptor->AddName(name.Get()) : AAXResult::Failed;
}

std::int32_t AAX_VPlugInDescriptor::AddCreationProcedure(AAX_CreationProcedure procedure, AAX_ProcedureId id)
{
    return descriptor ? descriptor->AddCreationProcedure(procedure, id) : AAXResult::Failed;
}

AAX_VComponentDescriptor AAX_VPlugInDescriptor::NewComponentDescriptor()
{
    IAAXComponentDescriptor* component = nullptr;
    if (descriptor && descriptor->CreateComponentDescriptor(&component) != AAXResult::Ok)
    {
        component = nullptr;
    }
    return AAX_VComponentDescriptor(TACFReference<IAAXComponentDescriptor>::Adopt(component));
}

std::int32_t AAX_VPlugInDescriptor::AddComponent(const AAX_VComponentDescriptor& component)
{
    return descriptor ? descriptor->AddComponent(component.Get()) : AAXResult::Failed;
}
