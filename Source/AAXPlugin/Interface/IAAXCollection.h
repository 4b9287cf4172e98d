#pragma once

#include "AAXPlugin/Interface/IAAXEffectDescriptor.h"

/// Takes the description of all that a module holds. The host's object, which also offers
/// IAAXPluginDefinition.
class IAAXCollection : public IACFUnknown
{
public:
    /// A new descriptor in `out`, with one reference for the caller; null on failure. It belongs to the
    /// collection only once it is added.
    virtual std::int32_t CreateEffectDescriptor(IAAXEffectDescriptor** out) = 0;
    virtual std::int32_t AddEffect(const char* identifier, IAAXEffectDescriptor* effect) = 0;

    /// Texts are copied.
    virtual std::int32_t SetManufacturerName(const char* name) = 0;
    virtual std::int32_t AddPackageName(const char* name) = 0;
    virtual std::int32_t SetPackageVersion(std::uint32_t version) = 0;

protected:
    ~IAAXCollection() = default;
};
