#pragma once

#include "AAXPlugin/CInProcessPlugin.h"

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

namespace Tests
{

/// Plays noise bursts through an instance on a thread of its own, from its making to Stop.
class CRunningAudio
{
public:
    static constexpr int Block = 480;

    explicit CRunningAudio(Host::CHostInstance& instance_) : instance(instance_), thread([this] { Run(); }) {}
    CRunningAudio(const CRunningAudio&) = delete;
    CRunningAudio& operator=(const CRunningAudio&) = delete;
    ~CRunningAudio() { Stop(); }

    void Stop()
    {
        isDone = true;
        if (thread.joinable())
        {
            thread.join();
        }
    }

    /// After Stop.
    long GetBlockCount() const { return blocks; }

private:
    void Run()
    {
        CChannels inputs(2, Block);
        CChannels outputs(2, Block);
        std::minstd_rand random(1);
        while (!isDone)
        {
            const float loudness = blocks / 50 % 2 == 0 ? 1.2F : 0.1F;
            std::uniform_real_distribution<float> noise(-loudness, loudness);
            for (std::size_t channel = 0; channel < 2; ++channel)
            {
                for (float& sample : inputs[channel])
                {
                    sample = noise(random);
                }
            }
            instance.Process(inputs.Get(), outputs.Get(), Block);
            ++blocks;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    Host::CHostInstance& instance;
    std::atomic<bool> isDone{false};
    long blocks = 0;
    std::thread thread;
};

} // namespace Tests
