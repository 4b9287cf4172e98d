#include "AAXPlugin/CHostHolder.h"
#include "AAXPlugin/Description.h"
#include "AAXPlugin/Guarded.h"
#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/AAX_VCollection.h"
#include "AAXPlugin/Interface/ACFExports.h"
#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "AAXPlugin/TopLevelFilterChannels.h"

#define MODULE_EXPORT extern "C" __attribute__((visibility("default")))

using namespace MirelExt::AAXPlugin;

namespace
{

constexpr std::int32_t StillInUse = 1;

void SetNull(void** out)
{
    if (out != nullptr)
    {
        *out = nullptr;
    }
}

std::int32_t RegisterPlugin(IACFUnknown* host, void** definition)
{
    AAX_VCollection collection(host);
    if (DescribeModule(collection, GetTopLevelFilterChannels) != AAXResult::Ok || definition == nullptr)
    {
        return AAXResult::Failed;
    }
    if (collection.GetUnknown()->QueryInterface(InterfaceIdOf<IAAXPluginDefinition>, definition) !=
        AAXResult::Ok)
    {
        *definition = nullptr;
        return AAXResult::Failed;
    }
    return AAXResult::Ok;
}

} // namespace

MODULE_EXPORT std::int32_t ACFStartup(IACFUnknown* host)
{
    return Guarded(
        [&]
        {
            CHostHolder::GetInstance().Set(host);
            return AAXResult::Ok;
        });
}

MODULE_EXPORT std::int32_t ACFRegisterPlugin(IACFUnknown* host, void** definition)
{
    SetNull(definition);
    return Guarded([&] { return RegisterPlugin(host, definition); });
}

MODULE_EXPORT std::int32_t ACFRegisterComponent(IACFUnknown*, std::uint32_t, void** component)
{
    return Guarded(
        [&]
        {
            SetNull(component);
            return AAXResult::Ok;
        });
}

MODULE_EXPORT std::int32_t ACFGetClassFactory(IACFUnknown*, const ACFInterfaceId*, const ACFInterfaceId*,
                                              void** factory)
{
    return Guarded(
        [&]
        {
            SetNull(factory);
            return AAXResult::Unsupported;
        });
}

MODULE_EXPORT std::int32_t ACFCanUnloadNow(IACFUnknown*)
{
    return Guarded([] { return CACFUnknown::GetLiveCount() == 0 ? AAXResult::Ok : StillInUse; });
}

MODULE_EXPORT std::int32_t ACFShutdown(IACFUnknown*)
{
    return Guarded(
        []
        {
            CHostHolder::GetInstance().Clear();
            return AAXResult::Ok;
        });
}
