#pragma once

#include <cstdint>

class IACFUnknown;

/// What the host hands a process procedure for one instance: one pointer per declared field, at the field's
/// index. A data-in port's field points to its last packet, the audio fields to arrays of channel pointers
/// (32-bit float samples, as many channels as the variant's stem format has), the buffer length's field to a
/// 32-bit sample count, a MIDI node's field to the node.
using AAX_InstanceRecord = void* const*;

/// Processes one block of each of `count` instances. Audio thread.
using AAX_ProcessProcedure = void (*)(const AAX_InstanceRecord* instances, std::int32_t count);

/// Makes one object of an instance; the caller owns the one reference. Null if none can be made.
using AAX_CreationProcedure = IACFUnknown* (*)();

/// What an object that a creation procedure makes is for.
enum class AAX_ProcedureId : std::int32_t
{
    EffectParameters = 0,
    Gui = 1
};
