#pragma once

namespace Mirel::System
{

/// Told when a loop has nothing else to do.
class IIdleListener
{
public:
    virtual void OnIdle() = 0;
    virtual ~IIdleListener() = default;
};

} // namespace Mirel::System
