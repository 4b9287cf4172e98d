#pragma once

namespace Mirel::Core
{

/// A lock of any kind. The thread that locked it unlocks it. CAutoLock pairs the two.
class ILock
{
public:
    virtual void Lock() = 0;
    virtual void Unlock() = 0;
    virtual ~ILock() = default;
};

} // namespace Mirel::Core
