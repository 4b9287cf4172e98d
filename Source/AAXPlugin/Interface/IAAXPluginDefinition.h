#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

/// What a module registered, as the module hands it back to the host.
class IAAXPluginDefinition : public IACFUnknown
{
public:
    virtual std::int32_t GetEffectCount() = 0;

protected:
    ~IAAXPluginDefinition() = default;
};
