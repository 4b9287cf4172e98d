#pragma once

#include "AAXPlugin/Interface/AAX_VComponentDescriptor.h"
#include "AAXPlugin/Interface/IAAXEffectDescriptor.h"

/// The plug-in's handle of an effect descriptor. Operations on one that holds nothing give Failed.
class AAX_VPlugInDescriptor
{
public:
    explicit AAX_VPlugInDescriptor(TACFReference<IAAXEffectDescriptor> descriptor_);

    explicit operator bool() const { return static_cast<bool>(descriptor); }
    IAAXEffectDescriptor* Get() const { return descriptor.Get(); }

    std::int32_t AddName(const AAX_CString& name);
    std::int32_t AddCreationProcedure(AAX_CreationProcedure procedure, AAX_ProcedureId id);

    /// Holds nothing if the host gave none.
    AAX_VComponentDescriptor NewComponentDescriptor();
    std::int32_t AddComponent(const AAX_VComponentDescriptor& component);

private:
    TACFReference<IAAXEffectDescriptor> descriptor;
};
