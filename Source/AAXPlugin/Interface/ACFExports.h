#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

#include <cstdint>

/// The functions that a module exports, in the order in which a host uses them. No exception leaves them:
/// they answer AAXResult::Unexpected instead.
extern "C"
{
    /// First call. The module keeps the host until ACFShutdown; while it has one, another is not taken.
    std::int32_t ACFStartup(IACFUnknown* host);

    /// Describes the module to the host. On success `definition` is an IAAXPluginDefinition with one
    /// reference for the caller, otherwise null with the result Failed.
    std::int32_t ACFRegisterPlugin(IACFUnknown* host, void** definition);

    /// No component stands outside the plug-in definition: `component` is null, the result Ok.
    std::int32_t ACFRegisterComponent(IACFUnknown* host, std::uint32_t index, void** component);

    /// No class factory is offered: `factory` is null, the result Unsupported.
    std::int32_t ACFGetClassFactory(IACFUnknown* host, const ACFInterfaceId* classId,
                                    const ACFInterfaceId* interfaceId, void** factory);

    /// 0 when no object of the module is alive, so that it may be unloaded; 1 otherwise.
    std::int32_t ACFCanUnloadNow(IACFUnknown* host);

    /// Last call.
    std::int32_t ACFShutdown(IACFUnknown* host);
}

using ACFStartupFunction = decltype(ACFStartup);
using ACFRegisterPluginFunction = decltype(ACFRegisterPlugin);
using ACFRegisterComponentFunction = decltype(ACFRegisterComponent);
using ACFGetClassFactoryFunction = decltype(ACFGetClassFactory);
using ACFCanUnloadNowFunction = decltype(ACFCanUnloadNow);
using ACFShutdownFunction = decltype(ACFShutdown);
