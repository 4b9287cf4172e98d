#pragma once

#include "Host/Live/CLivePlayer.h"
#include "Host/Live/IAudioDriver.h"

#include <atomic>
#include <thread>

namespace Host
{

/// Processes blocks at the pace of the clock, unheard, on a thread of its own. The player must outlive it.
class CClockDriver : public IAudioDriver
{
public:
    CClockDriver(CLivePlayer& player_, int blockFrames_);
    CClockDriver(const CClockDriver&) = delete;
    CClockDriver& operator=(const CClockDriver&) = delete;
    ~CClockDriver() override;

private:
    void Run();

    CLivePlayer& player;
    int blockFrames;
    std::atomic<bool> stops = false;
    std::thread thread;
};

} // namespace Host
