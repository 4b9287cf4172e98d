// A module whose answers are chosen when it is built: each macro is the result of one export. Without
// REGISTER_RESULT it registers an empty collection.
#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/AAX_Properties.h"
#include "AAXPlugin/Interface/AAX_VCollection.h"
#include "AAXPlugin/Interface/ACFExports.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "AAXPlugin/Interface/InterfaceIds.h"

#define MODULE_EXPORT extern "C" __attribute__((visibility("default")))

#ifndef STARTUP_RESULT
#define STARTUP_RESULT 0
#endif
#ifndef CAN_UNLOAD_RESULT
#define CAN_UNLOAD_RESULT 0
#endif
#ifndef SHUTDOWN_RESULT
#define SHUTDOWN_RESULT 0
#endif

#ifdef WITH_MONO_VARIANT
/// An effect whose creation procedure makes nothing.
static void DescribeMonoVariant(AAX_VPlugInDescriptor& effect)
{
    AAX_VComponentDescriptor component = effect.NewComponentDescriptor();
    AAX_VPropertyMap properties = component.NewPropertyMap();
    properties.SetProperty(AAXProperty::InputStemFormat, 1);
    properties.SetProperty(AAXProperty::OutputStemFormat, 1);
    component.AddProcessProcedure([](const AAX_InstanceRecord*, std::int32_t) {}, properties);
    effect.AddComponent(component);
    effect.AddCreationProcedure([]() -> IACFUnknown* { return nullptr; }, AAX_ProcedureId::EffectParameters);
}
#endif

MODULE_EXPORT std::int32_t ACFStartup(IACFUnknown*)
{
    return STARTUP_RESULT;
}

MODULE_EXPORT std::int32_t ACFRegisterPlugin([[maybe_unused]] IACFUnknown* host, void** definition)
{
    *definition = nullptr;
#ifdef REGISTER_RESULT
    return REGISTER_RESULT;
#else
    AAX_VCollection collection(host);
#ifdef WITH_EFFECT
    AAX_VPlugInDescriptor effect = collection.NewDescriptor();
#ifdef WITH_MONO_VARIANT
    DescribeMonoVariant(effect);
#endif
    collection.AddEffect(AAX_CString("test"), effect);
#endif
    return collection.GetUnknown()->QueryInterface(InterfaceIdOf<IAAXPluginDefinition>, definition);
#endif
}

MODULE_EXPORT std::int32_t ACFShutdown(IACFUnknown*)
{
    return SHUTDOWN_RESULT;
}

#ifndef PARTIAL
MODULE_EXPORT std::int32_t ACFRegisterComponent(IACFUnknown*, std::uint32_t, void**)
{
    return 0;
}

MODULE_EXPORT std::int32_t ACFGetClassFactory(IACFUnknown*, const ACFInterfaceId*, const ACFInterfaceId*,
                                              void**)
{
    return AAXResult::Unsupported;
}

MODULE_EXPORT std::int32_t ACFCanUnloadNow(IACFUnknown*)
{
    return CAN_UNLOAD_RESULT;
}
#endif
