#pragma once

namespace Mirel::Core
{

/// A mark that something changed since it was last taken up.
class IDirty
{
public:
    virtual bool IsDirty() const = 0;
    virtual void SetDirty(bool dirty) = 0;
    virtual ~IDirty() = default;
};

} // namespace Mirel::Core
