#include "AAXPlugin/Interface/AAX_VComponentDescriptor.h"

#include "AAXPlugin/Interface/AAXResults.h"

AAX_VComponentDescriptor::AAX_VComponentDescriptor(TACFReference<IAAXComponentDescriptor> descriptor_)
    : descriptor(std::move(descriptor_))
{
}

std::int32_t AAX_VComponentDescriptor::AddDataInPort(std::uint32_t field, std::uint32_t packetSize,
                                                     std::int32_t portType)
{
    return descriptor ? descriptor->AddDataInPort(field, packetSize, portType) : AAXResult::Failed;
}

std::int32_t AAX_VComponentDescriptor::AddAudioInput(std::uint32_t field)
{
    return descriptor ? descriptor->AddAudioInput(field) : AAXResult::Failed;
}

std::int32_t AAX_VComponentDescriptor::AddAudioOutput(std::uint32_t field)
{
    return descriptor ? descriptor->AddAudioOutput(field) : AAXResult::Failed;
}

std::int32_t AAX_VComponentDescriptor::AddAudioBufferLength(std::uint32_t field)
{
    return descriptor ? descriptor->AddAudioBufferLength(field) : AAXResult::Failed;
}

std::int32_t AAX_VComponentDescriptor::AddMidiNode(std::uint32_t field, AAX_MidiNodeType type,
                                                   const AAX_CString& name, std::uint32_t channelMask)
{
    return descriptor ? descriptor->AddMidiNode(field, type, name.Get(), channelMask) : AAXResult::Failed;
}

AAX_VPropertyMap AAX_VComponentDescriptor::NewPropertyMap()
{
    IAAXPropertyMap* map = nullptr;
    if (descriptor && descriptor->CreatePropertyMap(&map) != AAXResult::Ok)
    {
        map = nullptr;
    }
    return AAX_VPropertyMap(TACFReference<IAAXPropertyMap>::Adopt(map));
}

std::int32_t AAX_VComponentDescriptor::AddProcessProcedure(AAX_ProcessProcedure procedure,
                                                           const AAX_VPropertyMap& properties)
{
    return descriptor ? descriptor->AddProcessProcedure(procedure, properties.Get()) : AAXResult::Failed;
}
