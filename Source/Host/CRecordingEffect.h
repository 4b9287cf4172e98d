#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXEffectDescriptor.h"
#include "Host/CRecordingComponent.h"
#include "Host/TMadeObjects.h"

namespace Host
{

/// Keeps what one effect declares, in order. A null text or procedure, or a component that is not its own, is
/// refused with Failed.
class CRecordingEffect : public TACFObject<IAAXEffectDescriptor>
{
public:
    std::int32_t AddName(const char* name) override;
    std::int32_t AddCreationProcedure(AAX_CreationProcedure procedure, AAX_ProcedureId id) override;
    std::int32_t CreateComponentDescriptor(IAAXComponentDescriptor** out) override;
    std::int32_t AddComponent(IAAXComponentDescriptor* component) override;

    const std::vector<CEffectDeclaration>& GetDeclarations() const { return declarations; }

private:
    std::vector<CEffectDeclaration> declarations;
    TMadeObjects<CRecordingComponent> components;
};

} // namespace Host
