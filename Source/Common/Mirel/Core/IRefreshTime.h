#pragma once

namespace Mirel::Core
{

/// Something that works at a period.
class IRefreshTime
{
public:
    /// In milliseconds.
    virtual int GetRefreshTime() const = 0;
    virtual void SetRefreshTime(int milliseconds) = 0;
    virtual ~IRefreshTime() = default;
};

} // namespace Mirel::Core
