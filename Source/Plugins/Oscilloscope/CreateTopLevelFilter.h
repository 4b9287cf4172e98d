#pragma once

#include "Mirel/Audio/DSP/IFilter.h"

#include <memory>

namespace PluginsFilters
{

/// The filter that a plug-in instance runs: an oscilloscope a channel, fed with left and right or mid and
/// side. Only this function knows its type.
std::unique_ptr<Mirel::Audio::DSP::IFilter> CreateTopLevelFilter();

} // namespace PluginsFilters
