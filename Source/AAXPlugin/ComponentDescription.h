#pragma once

#include "AAXPlugin/CChannelCounts.h"

#include <cstdint>

class AAX_VComponentDescriptor;

namespace MirelExt::AAXPlugin
{

/// Declares the fields, the process procedure and its properties of one variant of the effect. With
/// `monoVariant` both sides have one channel whatever `channels` says. The result is that of the first
/// declaration that fails, which is the last one made; Failed if there is no property map; else Ok.
std::int32_t DescribeComponent(AAX_VComponentDescriptor& component, CChannelCounts channels,
                               std::uint32_t pluginId, bool monoVariant);

} // namespace MirelExt::AAXPlugin
