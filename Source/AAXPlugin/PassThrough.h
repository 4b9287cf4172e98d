#pragma once

#include "AAXPlugin/CChannelCounts.h"
#include "AAXPlugin/Interface/AAX_Procedures.h"

namespace MirelExt::AAXPlugin
{

/// Lets the audio of an instance through: every input channel goes to the output of the same index, an output
/// without an input gets silence. An input without a buffer is none; an output without a buffer is left out,
/// and so is a record without outputs or without a sample count. A host may process in place. Audio thread;
/// neither allocates nor locks.
void PassThrough(AAX_InstanceRecord record, CChannelCounts channels) noexcept;

} // namespace MirelExt::AAXPlugin
