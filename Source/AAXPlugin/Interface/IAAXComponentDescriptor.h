#pragma once

#include "AAXPlugin/Interface/AAX_Procedures.h"
#include "AAXPlugin/Interface/IAAXPropertyMap.h"

/// Which way a MIDI node carries events, seen from the plug-in.
enum class AAX_MidiNodeType : std::int32_t
{
    LocalInput = 0,
    LocalOutput = 1
};

/// Takes the description of one variant of an effect: the fields of its instance records by index, its
/// process procedure and that procedure's properties. The host's object.
class IAAXComponentDescriptor : public IACFUnknown
{
public:
    /// `packetSize` in bytes.
    virtual std::int32_t AddDataInPort(std::uint32_t field, std::uint32_t packetSize,
                                       std::int32_t portType) = 0;
    virtual std::int32_t AddAudioInput(std::uint32_t field) = 0;
    virtual std::int32_t AddAudioOutput(std::uint32_t field) = 0;
    virtual std::int32_t AddAudioBufferLength(std::uint32_t field) = 0;

    /// Bit n of `channelMask` stands for MIDI channel n + 1. `name` is copied.
    virtual std::int32_t AddMidiNode(std::uint32_t field, AAX_MidiNodeType type, const char* name,
                                     std::uint32_t channelMask) = 0;

    /// A new map in `out`, with one reference for the caller; null on failure.
    virtual std::int32_t CreatePropertyMap(IAAXPropertyMap** out) = 0;

    /// `properties` is a map of CreatePropertyMap; the host keeps its own reference.
    virtual std::int32_t AddProcessProcedure(AAX_ProcessProcedure procedure, IAAXPropertyMap* properties) = 0;

protected:
    ~IAAXComponentDescriptor() = default;
};
