#pragma once

#include "Mirel/System/ITickSource.h"

namespace Mirel::System
{

/// The machine's monotonic clock, in nanoseconds.
class CMonotonicTickSource : public ITickSource
{
public:
    static const CMonotonicTickSource& GetInstance();

    std::uint64_t GetTicks() const override;
    STickRate GetRate() const override { return {1, 1}; }
};

} // namespace Mirel::System
