#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXComponentDescriptor.h"
#include "Host/CRecordingPropertyMap.h"
#include "Host/TMadeObjects.h"

namespace Host
{

/// Keeps what one component declares, in order. A null text or procedure, or a map that is not its own, is
/// refused with Failed.
class CRecordingComponent : public TACFObject<IAAXComponentDescriptor>
{
public:
    std::int32_t AddDataInPort(std::uint32_t field, std::uint32_t packetSize, std::int32_t portType) override;
    std::int32_t AddAudioInput(std::uint32_t field) override;
    std::int32_t AddAudioOutput(std::uint32_t field) override;
    std::int32_t AddAudioBufferLength(std::uint32_t field) override;
    std::int32_t AddMidiNode(std::uint32_t field, AAX_MidiNodeType type, const char* name,
                             std::uint32_t channelMask) override;
    std::int32_t CreatePropertyMap(IAAXPropertyMap** out) override;
    std::int32_t AddProcessProcedure(AAX_ProcessProcedure procedure, IAAXPropertyMap* properties) override;

    const std::vector<CComponentDeclaration>& GetDeclarations() const { return declarations; }

private:
    std::int32_t Record(CComponentDeclaration declaration);

    std::vector<CComponentDeclaration> declarations;
    TMadeObjects<CRecordingPropertyMap> maps;
};

} // namespace Host
