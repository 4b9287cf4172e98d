#pragma once

#include "Mirel/Audio/DSP/CDescribedFilter.h"

namespace Mirel::Audio::Plugin
{

/// The description of the switch that every plug-in puts in front of its filter's parameters, as a list of
/// one.
DSP::CParamsInfo MakeBypassInfo();

} // namespace Mirel::Audio::Plugin
