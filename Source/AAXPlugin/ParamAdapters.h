#pragma once

#include "AAXPlugin/CAAXPluginParamAdapter.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Containers/TDynamicCollection.h"

namespace MirelExt::AAXPlugin
{

/// One adapter per input parameter of an instance, Bypass first.
using CInputAdapters =
    Mirel::Containers::TDynamicCollection<CAAXPluginParamAdapter, Mirel::Audio::Plugin::IInputParam>;

/// One adapter per output parameter.
using COutputAdapters =
    Mirel::Containers::TDynamicCollection<CAAXPluginParamAdapter, Mirel::Audio::Plugin::IOutputParam>;

/// Fills the lists, which are empty, for the parameters of an instance. Identifiers are "P0", "P1", ..., the
/// outputs' after the inputs'. Instance and mark must outlive the use of the adapters.
void MakeAdapters(Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals,
                  const CAudioThreadMark& audioThread, CInputAdapters& inputs, COutputAdapters& outputs);

} // namespace MirelExt::AAXPlugin
