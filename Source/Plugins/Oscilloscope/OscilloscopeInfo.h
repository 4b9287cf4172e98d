#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"

namespace PluginsFilters
{

/// What the oscilloscope says of itself; built once for the process, copied by every instance.
const Mirel::Audio::DSP::CParamsInfo& OscilloscopeInputParams();
const Mirel::Audio::DSP::CCurvesInfo& OscilloscopeOutputCurves();
const Mirel::Audio::DSP::CProcessInfo& OscilloscopeProcess();
const Mirel::DataModel::Objects::IConstProductInfo& OscilloscopeProduct();

} // namespace PluginsFilters
