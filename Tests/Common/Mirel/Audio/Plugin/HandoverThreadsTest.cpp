// The audio thread publishes while others read as editors and hosts do.

#include "Common/Mirel/Audio/Plugin/HandoverRig.h"
#include "Common/Mirel/Audio/Plugin/PublishingEffect.h"
#include "Mirel/Core/CAutoLock.h"
#include "Plugins/Oscilloscope/ScopeRig.h"
#include "Support/CFunctionCommand.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using Mirel::Audio::Plugin::COutputCaptures;
using Mirel::Core::CAutoLock;
using Mirel::Math::IFunction;
using Tests::CHandoverRig;

namespace
{

/// Runs body() over and over on a thread of its own, for as long as it lives.
class CRepeater
{
public:
    explicit CRepeater(std::function<void()> body_) : body(std::move(body_)), thread([this] { Run(); }) {}
    CRepeater(const CRepeater&) = delete;
    CRepeater& operator=(const CRepeater&) = delete;

    ~CRepeater()
    {
        stop = true;
        thread.join();
    }

    int GetRounds() const { return rounds; }

private:
    void Run()
    {
        while (!stop)
        {
            body();
            ++rounds;
            std::this_thread::yield();
        }
    }

    std::function<void()> body;
    std::atomic<bool> stop{false};
    std::atomic<int> rounds{0};
    std::thread thread; // last: it uses the others
};

/// Runs block() on a thread of its own until the reader has come round often enough.
void RunAudio(const CRepeater& reader, const std::function<void()>& block)
{
    std::thread audio(
        [&]
        {
            const int wanted = reader.GetRounds() + 100;
            const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
            for (int i = 0;
                 i < 300 || (reader.GetRounds() < wanted && std::chrono::steady_clock::now() < end); ++i)
            {
                block();
                // As a host would: without a pause the readers hardly get the lock.
                std::this_thread::sleep_for(std::chrono::microseconds(20));
            }
        });
    audio.join();
    EXPECT_GE(reader.GetRounds(), 100);
}

/// The largest step between neighbours among 101 places from -1 to 0.
float LargestStep(const IFunction& function)
{
    float largest = 0.0f;
    float previous = function(-1.0f);
    for (int i = 1; i <= 100; ++i)
    {
        const float value = function(-1.0f + static_cast<float>(i) / 100.0f);
        largest = std::max(largest, std::abs(value - previous));
        previous = value;
    }
    return largest;
}

/// Both channels get a ramp that rises by 1 with each sample, one of them upside down, so that a picture of
/// two publications would have a step in it.
class CRamp
{
public:
    void Restart() { next = 1.0f; }

    void Process(CHandoverRig& rig)
    {
        const auto length = static_cast<std::size_t>(static_cast<int>(next) % 37 + 1);
        std::vector<float> left;
        std::vector<float> right;
        while (left.size() < length)
        {
            left.push_back(next);
            right.push_back(-next);
            next += 1.0f;
        }
        // No picture may mix two rounds of the counter, nor leave what a float can count.
        if (next < 1e6f)
        {
            rig.Process(left, right);
        }
    }

private:
    float next = 1.0f;
};

} // namespace

TEST(HandoverThreads, NoReaderSeesAMixtureOfTwoPublications)
{
    constexpr float samplesPerPlace = 2.0f; // the largest rate below, over 100 places
    CHandoverRig rig(101.0);
    CRamp ramp;
    ramp.Process(rig);
    const COutputCaptures& captures = rig.captures;
    std::unique_ptr<IFunction> copy;
    float largestStep = 0.0f;
    float largestDifference = 0.0f;
    const auto read = [&]
    {
        captures.GetCurves()[0].Read([&](const IFunction& function)
                                     { largestStep = std::max(largestStep, LargestStep(function)); });
        if (captures.GetCurves()[2].UpdateCopy(copy))
        {
            largestStep = std::max(largestStep, LargestStep(*copy));
        }
        const CAutoLock guard(captures.GetLock());
        const float sum = rig.Read(0, 0.0f) + rig.Read(2, 0.0f);
        largestDifference = std::max(largestDifference, std::abs(sum));
    };
    {
        const CRepeater reader(read);
        for (const double rate : {101.0, 201.0, 50.0})
        {
            rig.Init(rate);
            ramp.Restart();
            RunAudio(reader, [&] { ramp.Process(rig); });
        }
    }
    EXPECT_LE(largestStep, samplesPerPlace + 0.5f);
    EXPECT_GT(largestStep, 0.4f) << "there was something to see";
    EXPECT_EQ(largestDifference, 0.0f);
}

TEST(HandoverThreads, WhateverChangesOnTheAudioThreadReadersAndListenersStayApartFromIt)
{
    CHandoverRig rig(500.0, 100.0);
    const COutputCaptures& captures = rig.captures;
    std::atomic<std::thread::id> audioThread{};
    std::atomic<int> events{0};
    Tests::CFunctionCommand listener(
        [&]
        {
            ++events;
            EXPECT_NE(std::this_thread::get_id(), audioThread.load());
            captures.GetCurves()[1].Read([](const IFunction& function) { EXPECT_LE(function(0.0f), 1.0f); });
        });
    captures.GetCurves()[1].GetChangedEventProvider().Connect(listener);
    const CRepeater reader([&] { captures.DeliverChanges(); });
    const CRepeater settings(
        [&] { rig.filter->GetOutputDataSync()->SetRefreshRate(events % 2 == 0 ? 100.0 : 0.0); });

    auto noise = Tests::Noise(40, 1.0f);
    int round = 0;
    RunAudio(reader,
             [&]
             {
                 audioThread = std::this_thread::get_id();
                 ++round;
                 rig.Set(CHandoverRig::ViewMode, static_cast<float>(round % 3));
                 rig.Set(CHandoverRig::StereoMode, static_cast<float>(round / 3 % 2));
                 rig.Set(CHandoverRig::Sync, static_cast<float>(round / 20 % 2));
                 rig.Process(noise, noise);
                 rig.Silence(round % 50 == 0 ? 600 : 5);
             });
    EXPECT_GT(events, 0);
}

TEST(HandoverThreads, TextsAndParametersCrossWhole)
{
    Tests::CPublishingEffect effect;
    COutputCaptures captures(effect);
    std::atomic<int> torn{0};
    const CRepeater reader(
        [&]
        {
            const std::string text = captures.GetStrings()[0].GetText();
            if (text != "none yet" && text != std::string(text.size(), text[0]))
            {
                ++torn;
            }
            captures.DeliverChanges();
            if (const float level = captures.GetParams()[0].GetValue(); level < 0.0f || level > 25.0f)
            {
                ++torn;
            }
        });
    int round = 0;
    RunAudio(reader,
             [&]
             {
                 const int letter = ++round % 26;
                 effect.SetLevel(static_cast<float>(letter));
                 effect.GetString().Set(
                     std::string(static_cast<std::size_t>(letter) + 1, static_cast<char>('a' + letter)));
                 static_cast<void>(captures.Publish(effect));
             });
    EXPECT_EQ(torn, 0);
}
