#include "AAXPlugin/Interface/AAX_VCollection.h"

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/IAAXHost.h"
#include "AAXPlugin/Interface/QueryFor.h"

namespace
{

TACFReference<IAAXCollection> CreateCollection(IACFUnknown* unknown)
{
    const TACFReference<IAAXHost> host = QueryFor<IAAXHost>(unknown);
    IAAXCollection* collection = nullptr;
    if (host && host->CreateCollection(&collection) != AAXResult::Ok)
    {
        collection = nullptr;
    }
    return TACFReference<IAAXCollection>::Adopt(collection);
}

} // namespace

AAX_VCollection::AAX_VCollection(IACFUnknown* host) : collection(CreateCollection(host)) {}

AAX_VPlugInDescriptor AAX_VCollection::NewDescriptor()
{
    IAAXEffectDescriptor* effect = nullptr;
    if (collection && collection->CreateEffectDescriptor(&effect) != AAXResult::Ok)
    {
        effect = nullptr;
    }
    return AAX_VPlugInDescriptor(TACFReference<IAAXEffectDescriptor>::Adopt(effect));
}

std::int32_t AAX_VCollection::AddEffect(const AAX_CString& identifier, const AAX_VPlugInDescriptor& effect)
{
    return collection ? collection->AddEffect(identifier.Get(), effect.Get()) : AAXResult::Failed;
}

std::int32_t AAX_VCollection::SetManufacturerName(const AAX_CString& name)
{
    return collection ? collection->SetManufacturerName(name.Get()) : AAXResult::Failed;
}

std::int32_t AAX_VCollection::AddPackageName(const AAX_CString& name)
{
    return collection ? collection->AddPackageName(name.Get()) : AAXResult::Failed;
}

std::int32_t AAX_VCollection::SetPackageVersion(std::uint32_t version)
{
    return collection ? collection->SetPackageVersion(version) : AAXResult::Failed;
}
