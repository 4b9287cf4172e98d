#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Serialization
{

/// An object that is saved with its class, so that it can be created again by somebody who knows only the
/// interface.
class ITypeSerializable : public ISerializable
{
public:
    /// The class key under which the object is saved and created again; null for a class that is not saved by
    /// key. Static text.
    virtual const char* GetTypeKey() const = 0;
};

} // namespace Mirel::Serialization
