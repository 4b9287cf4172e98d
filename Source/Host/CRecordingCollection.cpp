#include "Host/CRecordingCollection.h"

namespace Host
{

std::int32_t CRecordingCollection::CreateEffectDescriptor(IAAXEffectDescriptor** out)
{
    return effects.Create(out);
}

std::int32_t CRecordingCollection::AddEffect(const char* identifier, IAAXEffectDescriptor* effect)
{
    TACFReference<CRecordingEffect> own = effects.Find(effect);
    if (identifier == nullptr || !own)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CAddedEffect{identifier, std::move(own)});
    return AAXResult::Ok;
}

std::int32_t CRecordingCollection::SetManufacturerName(const char* name)
{
    if (name == nullptr)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CManufacturerName{name});
    return AAXResult::Ok;
}

std::int32_t CRecordingCollection::AddPackageName(const char* name)
{
    if (name == nullptr)
    {
        return AAXResult::Failed;
    }
    declarations.emplace_back(CPackageName{name});
    return AAXResult::Ok;
}

std::int32_t CRecordingCollection::SetPackageVersion(std::uint32_t version)
{
    declarations.emplace_back(CPackageVersion{version});
    return AAXResult::Ok;
}

std::int32_t CRecordingCollection::GetEffectCount()
{
    return static_cast<std::int32_t>(RecordsOf<CAddedEffect>(declarations).size());
}

} // namespace Host
