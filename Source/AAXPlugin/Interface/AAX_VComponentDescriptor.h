#pragma once

#include "AAXPlugin/Interface/AAX_CString.h"
#include "AAXPlugin/Interface/AAX_VPropertyMap.h"
#include "AAXPlugin/Interface/IAAXComponentDescriptor.h"

/// The plug-in's handle of a component descriptor. Operations on one that holds nothing give Failed.
class AAX_VComponentDescriptor
{
public:
    explicit AAX_VComponentDescriptor(TACFReference<IAAXComponentDescriptor> descriptor_);

    explicit operator bool() const { return static_cast<bool>(descriptor); }
    IAAXComponentDescriptor* Get() const { return descriptor.Get(); }

    std::int32_t AddDataInPort(std::uint32_t field, std::uint32_t packetSize, std::int32_t portType);
    std::int32_t AddAudioInput(std::uint32_t field);
    std::int32_t AddAudioOutput(std::uint32_t field);
    std::int32_t AddAudioBufferLength(std::uint32_t field);
    std::int32_t AddMidiNode(std::uint32_t field, AAX_MidiNodeType type, const AAX_CString& name,
                             std::uint32_t channelMask);

    /// Holds nothing if the host gave none.
    AAX_VPropertyMap NewPropertyMap();
    std::int32_t AddProcessProcedure(AAX_ProcessProcedure procedure, const AAX_VPropertyMap& properties);

private:
    TACFReference<IAAXComponentDescriptor> descriptor;
};
