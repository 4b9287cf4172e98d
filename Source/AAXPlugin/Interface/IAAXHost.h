#pragma once

#include "AAXPlugin/Interface/IAAXCollection.h"

/// The host, asked for from the unknown that every export is given.
class IAAXHost : public IACFUnknown
{
public:
    /// A new, empty collection in `out`, with one reference for the caller; null on failure.
    virtual std::int32_t CreateCollection(IAAXCollection** out) = 0;

protected:
    ~IAAXHost() = default;
};
