// A module whose answers are chosen when it is built: each macro is the result of one export. Without
// REGISTER_RESULT it registers an empty collection.
#include "AAXPlugin/Interface/AAXResults.h"
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
    collection.AddEffect(AAX_CString("test"), collection.NewDescriptor());
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
