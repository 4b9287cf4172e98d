#pragma once

#include "AAXPlugin/CChannelCounts.h"
#include "AAXPlugin/Interface/AAX_Procedures.h"

namespace MirelExt::AAXPlugin
{

/// Lets the audio of each instance through: every input channel goes to the output of the same index, an
/// output without an input gets silence. An input without a buffer is none; an output without a buffer is
/// left out, and so is a record without outputs or without a sample count. A host may process in place. Audio
/// thread; neither allocates nor locks.
void PassThrough(const AAX_InstanceRecord* instances, std::int32_t count, CChannelCounts channels) noexcept;

/// PassThrough as a process procedure for a variant with so many channels: 1 to 8 on each side, as the stem
/// formats go. A count outside, which no host can ask for, is taken as the nearest.
AAX_ProcessProcedure GetPassThroughProcedure(CChannelCounts channels);

} // namespace MirelExt::AAXPlugin
