#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

/// Numbered 32-bit values that go with a process procedure. The host's object.
class IAAXPropertyMap : public IACFUnknown
{
public:
    /// `number` is one of AAXProperty. A number that is there already takes the new value.
    virtual std::int32_t SetProperty(std::uint32_t number, std::uint32_t value) = 0;

protected:
    ~IAAXPropertyMap() = default;
};
