#pragma once

#include <cstdint>

namespace Mirel::System
{

/// The rate of a tick counter: one tick lasts numerator / denominator nanoseconds.
struct STickRate
{
    std::uint32_t numerator;
    std::uint32_t denominator;

    /// denominator / numerator * 1000000 * milliseconds, in double precision; 0 for a negative time.
    std::uint64_t GetTicks(int milliseconds) const;

    double GetMilliseconds(std::uint64_t ticks) const;
};

/// A monotonic counter of a known rate. Any thread.
class ITickSource
{
public:
    virtual std::uint64_t GetTicks() const = 0;
    virtual STickRate GetRate() const = 0;
    virtual ~ITickSource() = default;
};

} // namespace Mirel::System
