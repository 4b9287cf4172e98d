#pragma once

#include "Mirel/DataModel/Objects/IParamInfo.h"

namespace Mirel::Audio::DSP
{

/// The parameter that switches a filter between left and right (0) and mid and side (1).
const DataModel::Objects::IParamInfo& StereoModeInfo();

} // namespace Mirel::Audio::DSP
