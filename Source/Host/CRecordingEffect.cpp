#include "Host/CRecordingEffect.h"

namespace Host
{

std::int32_t CRecordingEffect::AddName(const char* name)
{
    if (name == nullptr)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CName{name});
    return AAXResult::Ok;
}

std::int32_t CRecordingEffect::AddCreationProcedure(AAX_CreationProcedure procedure, AAX_ProcedureId id)
{
    if (procedure == nullptr)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CCreationProcedure{procedure, id});
    return AAXResult::Ok;
}

std::int32_t CRecordingEffect::CreateComponentDescriptor(IAAXComponentDescriptor** out)
{
    return components.Create(out);
}

std::int32_t CRecordingEffect::AddComponent(IAAXComponentDescriptor* component)
{
    TACFReference<CRecordingComponent> own = components.Find(component);
    if (!own)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CAddedComponent{std::move(own)});
    return AAXResult::Ok;
}

} // namespace Host
