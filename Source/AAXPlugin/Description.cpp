#include "AAXPlugin/Description.h"

#include "AAXPlugin/CFirstFailure.h"
#include "AAXPlugin/ComponentDescription.h"
#include "AAXPlugin/CreationProcedures.h"
#include "AAXPlugin/DisplayNames.h"
#include "AAXPlugin/Identity.h"
#include "AAXPlugin/Interface/AAX_VCollection.h"
#include "AAXPlugin/ModuleFile.h"

namespace MirelExt::AAXPlugin
{

namespace
{

std::int32_t AddNames(AAX_VPlugInDescriptor& effect)
{
    CFirstFailure calls;
    for (const std::string& line : SplitLines(MakeDisplayNames(ProductName)))
    {
        calls.Then([&] { return effect.AddName(AAX_CString(line)); });
    }
    return calls.GetResult();
}

std::int32_t AddVariant(AAX_VPlugInDescriptor& effect, CChannelCounts channels, std::uint32_t pluginId,
                        bool monoVariant)
{
    AAX_VComponentDescriptor component = effect.NewComponentDescriptor();
    if (!component)
    {
        return AAXResult::Failed;
    }
    return CFirstFailure()
        .Then([&] { return DescribeComponent(component, channels, pluginId, monoVariant); })
        .Then([&] { return effect.AddComponent(component); })
        .GetResult();
}

/// A host that does not take one of these shows the effect all the same: their results do not count.
void DescribePackage(AAX_VCollection& collection)
{
    collection.SetManufacturerName(AAX_CString(ManufacturerName));
    for (const std::string& line : SplitLines(MakeDisplayNames(ProductName)))
    {
        collection.AddPackageName(AAX_CString(line));
    }
    collection.SetPackageVersion(PackageVersion);
}

} // namespace

std::int32_t DescribeEffect(AAX_VPlugInDescriptor& effect, CChannelCounts declared)
{
    const CChannelCounts channels = OfferedChannels(declared);
    CFirstFailure calls;
    calls.Then([&] { return AddNames(effect); })
        .Then(
            [&] {
                return effect.AddCreationProcedure(CreateEffectParameters, AAX_ProcedureId::EffectParameters);
            })
        .Then([&] { return effect.AddCreationProcedure(CreateGui, AAX_ProcedureId::Gui); })
        .Then([&] { return AddVariant(effect, channels, MainPluginId, false); });
    if (channels != CChannelCounts{1, 1})
    {
        calls.Then([&] { return AddVariant(effect, channels, MonoPluginId, true); });
    }
    return calls.GetResult();
}

std::int32_t DescribeModule(AAX_VCollection& collection,
                            const std::function<CChannelCounts()>& declaredChannels)
{
    AAX_VPlugInDescriptor effect = collection.NewDescriptor();
    if (!effect)
    {
        return AAXResult::Failed;
    }
    std::int32_t result = DescribeEffect(effect, declaredChannels());
    if (result != AAXResult::Ok)
    {
        return result;
    }
    result = collection.AddEffect(AAX_CString(MakeEffectIdentifier(GetModulePath())), effect);
    DescribePackage(collection);
    return result;
}

} // namespace MirelExt::AAXPlugin
