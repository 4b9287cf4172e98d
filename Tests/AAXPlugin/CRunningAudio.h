#pragma once

#include "AAXPlugin/CInProcessPlugin.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <random>
#include <thread>
#include <utility>
#include <vector>

namespace Tests
{

/// Plays noise bursts through an instance on a thread of its own, from its making to Stop, and turns MIDI
/// controllers meanwhile.
class CRunningAudio
{
public:
    static constexpr int Block = 480;

    explicit CRunningAudio(Host::CHostInstance& instance_, std::vector<std::uint8_t> controllers_ = {})
        : instance(instance_),
          controllers(std::move(controllers_)),
          thread([this] { Run(); })
    {
    }
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

    /// Does something between two blocks.
    template <class Action>
    auto Between(const Action& action)
    {
        const std::scoped_lock lock(betweenBlocks);
        return action();
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
            Between(
                [&]
                {
                    TurnController(random);
                    instance.Process(inputs.Get(), outputs.Get(), Block);
                });
            ++blocks;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    /// In one of eight blocks.
    void TurnController(std::minstd_rand& random)
    {
        constexpr std::uint8_t firstChannel = 0xB0;
        constexpr std::uint32_t values = 128;
        if (!controllers.empty() && random() % 8 == 0)
        {
            const std::uint8_t number = controllers[random() % controllers.size()];
            EXPECT_TRUE(instance.GetMidiInput()->Add(
                MakeMidiEvent(0, firstChannel, number, static_cast<std::uint8_t>(random() % values))));
        }
    }

    Host::CHostInstance& instance;
    std::vector<std::uint8_t> controllers;
    std::atomic<bool> isDone{false};
    std::mutex betweenBlocks;
    long blocks = 0;
    std::thread thread;
};

} // namespace Tests
