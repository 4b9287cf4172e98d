#pragma once

namespace Mirel::Runtime
{

/// Makes objects of one class as one interface.
class IObjectFactory
{
public:
    /// A new object, owned by the caller, as a pointer to the interface that the factory was registered for.
    virtual void* Create() const = 0;
    virtual ~IObjectFactory() = default;
};

} // namespace Mirel::Runtime
