#pragma once

#include "AAXPlugin/CChannelCounts.h"

namespace MirelExt::AAXPlugin
{

/// What the top-level filter declares, read from a temporary instance.
CChannelCounts GetTopLevelFilterChannels();

} // namespace MirelExt::AAXPlugin
