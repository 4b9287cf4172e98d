#pragma once

#include "AAXPlugin/CChannelCounts.h"

#include <cstdint>
#include <functional>

class AAX_VCollection;
class AAX_VPlugInDescriptor;

namespace MirelExt::AAXPlugin
{

/// Describes the effect: names, creation procedures, the main variant with the channels offered for those
/// that the filter declares, and a mono variant beside it unless the main one is mono in, mono out already.
/// The result is that of the first call that fails, which is the last one made, or Failed if the host makes
/// no component; else Ok.
std::int32_t DescribeEffect(AAX_VPlugInDescriptor& effect, CChannelCounts declared);

/// Describes the module with its one effect. `declaredChannels` gives what the effect's filter declares and
/// is asked once, after the host has made the effect's descriptor. The result is Failed if it makes none,
/// that of DescribeEffect if not Ok, else that of the effect's registration.
std::int32_t DescribeModule(AAX_VCollection& collection,
                            const std::function<CChannelCounts()>& declaredChannels);

} // namespace MirelExt::AAXPlugin
