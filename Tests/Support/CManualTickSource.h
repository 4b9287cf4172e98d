#pragma once

#include "Mirel/System/ITickSource.h"

#include <atomic>

namespace Tests
{

/// A clock that stands still until it is told to advance. Starts away from zero, as real ones do.
class CManualTickSource : public Mirel::System::ITickSource
{
public:
    explicit CManualTickSource(Mirel::System::STickRate rate_ = {1, 1}) : rate(rate_) {}

    std::uint64_t GetTicks() const override
    {
        ++reads;
        return ticks;
    }
    Mirel::System::STickRate GetRate() const override { return rate; }

    /// How often the clock was looked at: tells a test that another thread has come to it.
    std::uint64_t GetReads() const { return reads; }

    void AdvanceTicks(std::uint64_t count) { ticks += count; }

    /// For a clock that counts nanoseconds.
    void AdvanceMilliseconds(int count) { ticks += static_cast<std::uint64_t>(count) * 1000000U; }

private:
    std::atomic<std::uint64_t> ticks = 1000;
    mutable std::atomic<std::uint64_t> reads = 0;
    Mirel::System::STickRate rate;
};

} // namespace Tests
