#include "Host/Live/CClockDriver.h"

#include <chrono>

namespace Host
{

CClockDriver::CClockDriver(CLivePlayer& player_, int blockFrames_)
    : player(player_),
      blockFrames(blockFrames_),
      thread([this] { Run(); })
{
}

CClockDriver::~CClockDriver()
{
    stops.store(true, std::memory_order_relaxed);
    thread.join();
}

void CClockDriver::Run()
{
    using CClock = std::chrono::steady_clock;
    constexpr auto mostLag = std::chrono::seconds(1);
    const auto period = std::chrono::duration_cast<CClock::duration>(
        std::chrono::duration<double>(blockFrames / player.GetSampleRate()));
    auto due = CClock::now();
    while (!stops.load(std::memory_order_relaxed))
    {
        player.Process(blockFrames);
        due += period;
        if (CClock::now() - due > mostLag)
        {
            due = CClock::now(); // after a suspended machine, say: what was missed is not caught up with
        }
        std::this_thread::sleep_until(due);
    }
}

} // namespace Host
