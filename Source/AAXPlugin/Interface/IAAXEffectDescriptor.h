#pragma once

#include "AAXPlugin/Interface/IAAXComponentDescriptor.h"

/// Takes the description of one effect: names, creation procedures, components. The host's object.
class IAAXEffectDescriptor : public IACFUnknown
{
public:
    /// Names come longest first; the host picks by the room it has. `name` is copied.
    virtual std::int32_t AddName(const char* name) = 0;
    virtual std::int32_t AddCreationProcedure(AAX_CreationProcedure procedure, AAX_ProcedureId id) = 0;

    /// A new descriptor in `out`, with one reference for the caller; null on failure. It belongs to the
    /// effect only once it is added.
    virtual std::int32_t CreateComponentDescriptor(IAAXComponentDescriptor** out) = 0;
    virtual std::int32_t AddComponent(IAAXComponentDescriptor* component) = 0;

protected:
    ~IAAXEffectDescriptor() = default;
};
