#include "Host/CRecordingComponent.h"

namespace Host
{

std::int32_t CRecordingComponent::AddDataInPort(std::uint32_t field, std::uint32_t packetSize,
                                                std::int32_t portType)
{
    return Record(CDataInPort{field, packetSize, portType});
}

std::int32_t CRecordingComponent::AddAudioInput(std::uint32_t field)
{
    return Record(CAudioInput{field});
}

std::int32_t CRecordingComponent::AddAudioOutput(std::uint32_t field)
{
    return Record(CAudioOutput{field});
}

std::int32_t CRecordingComponent::AddAudioBufferLength(std::uint32_t field)
{
    return Record(CAudioBufferLength{field});
}

std::int32_t CRecordingComponent::AddMidiNode(std::uint32_t field, AAX_MidiNodeType type, const char* name,
                                              std::uint32_t channelMask)
{
    return name == nullptr ? AAXResult::Failed : Record(CMidiNode{field, type, name, channelMask});
}

std::int32_t CRecordingComponent::CreatePropertyMap(IAAXPropertyMap** out)
{
    return maps.Create(out);
}

std::int32_t CRecordingComponent::AddProcessProcedure(AAX_ProcessProcedure procedure,
                                                      IAAXPropertyMap* properties)
{
    TACFReference<CRecordingPropertyMap> map = maps.Find(properties);
    if (procedure == nullptr || !map)
    {
        return AAXResult::Failed;
    }
    return Record(CProcessProcedure{procedure, std::move(map)});
}

std::int32_t CRecordingComponent::Record(CComponentDeclaration declaration)
{
    declarations.push_back(std::move(declaration));
    return AAXResult::Ok;
}

} // namespace Host
