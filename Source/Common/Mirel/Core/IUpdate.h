#pragma once

namespace Mirel::Core
{

/// Something that brings itself up to date when told.
class IUpdate
{
public:
    virtual void Update() = 0;
    virtual ~IUpdate() = default;
};

} // namespace Mirel::Core
