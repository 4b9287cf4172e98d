#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXCollection.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "Host/CRecordingEffect.h"
#include "Host/TMadeObjects.h"

namespace Host
{

/// Keeps what a module declares, in order. A null text, or an effect that is not its own, is refused with
/// Failed.
class CRecordingCollection : public TACFObject<IAAXCollection, IAAXPluginDefinition>
{
public:
    std::int32_t CreateEffectDescriptor(IAAXEffectDescriptor** out) override;
    std::int32_t AddEffect(const char* identifier, IAAXEffectDescriptor* effect) override;
    std::int32_t SetManufacturerName(const char* name) override;
    std::int32_t AddPackageName(const char* name) override;
    std::int32_t SetPackageVersion(std::uint32_t version) override;

    std::int32_t GetEffectCount() override;

    const std::vector<CCollectionDeclaration>& GetDeclarations() const { return declarations; }

private:
    std::vector<CCollectionDeclaration> declarations;
    TMadeObjects<CRecordingEffect> effects;
};

} // namespace Host
