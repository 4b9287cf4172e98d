#include "AAXPlugin/CInProcessPlugin.h"
#include "Support/Environment.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <random>
#include <thread>

namespace
{

using Tests::CChannels;

constexpr std::uint32_t Controls = 0x656C636B;
constexpr std::uint32_t State = 0x746E776C;

/// A third of a second, or as many seconds as AAXPLUGIN_THREADS_SECONDS says.
std::chrono::milliseconds Duration()
{
    const long seconds = Tests::GetEnvironmentNumber("AAXPLUGIN_THREADS_SECONDS", 0);
    return std::chrono::milliseconds(seconds > 0 ? seconds * 1000 : 300);
}

/// Does something over and over on a thread of its own.
class CBusyThread
{
public:
    explicit CBusyThread(std::function<void()> body_) : body(std::move(body_)) {}
    CBusyThread(const CBusyThread&) = delete;
    CBusyThread& operator=(const CBusyThread&) = delete;
    ~CBusyThread()
    {
        done = true;
        thread.join();
    }

private:
    std::function<void()> body;
    std::atomic<bool> done = false;
    std::thread thread{[this]
                       {
                           while (!done)
                           {
                               body();
                           }
                       }};
};

TEST(InstanceThreads, AudioRunsWhileOthersSaveLoadSetAndRead)
{
    Tests::CInProcessPlugin plugin;
    const auto instance = plugin.Make({2, 8000.0});
    auto& settings = Tests::InternalsOf(*instance).GetDefaultSettings().GetInputMIDISettings();
    settings[4].SetEnabled(true);
    settings[4].SetNumber(20);
    instance->GetController().TakePosts();
    const std::chrono::milliseconds duration = Duration();

    CChannels inputs(2, 64);
    CChannels outputs(2, 64);
    std::mt19937 audioEngine{1};
    std::mt19937 parameterEngine{2};
    std::int64_t blocks = 0;
    std::int64_t saves = 0;
    std::int64_t reads = 0;
    {
        const CBusyThread audio(
            [&]
            {
                inputs.Fill(static_cast<float>(audioEngine() % 3) - 1.0F);
                const auto value = static_cast<std::uint8_t>(audioEngine() % 128);
                instance->GetMidiInput()->Add(MakeMidiEvent(0, 0xB0, 20, value));
                instance->Process(inputs.Get(), outputs.Get(), static_cast<std::int32_t>(audioEngine() % 65));
                ++blocks;
            });
        const CBusyThread saver(
            [&]
            {
                std::string error;
                for (const std::uint32_t id : {Controls, State})
                {
                    std::vector<char> bytes;
                    if (instance->SaveChunk(id, bytes, error))
                    {
                        instance->IsActiveChunk(bytes);
                        instance->LoadChunk(bytes);
                    }
                }
                ++saves;
            });
        const CBusyThread parameters(
            [&]
            {
                const char* id = nullptr;
                instance->GetParameters().GetParameterId(static_cast<int>(parameterEngine() % 7), &id);
                instance->GetParameters().SetParameterValue(id, static_cast<double>(parameterEngine() % 101) /
                                                                    100.0);
                double value = 0.0;
                instance->GetParameters().GetParameterValue(id, &value);
            });
        const CBusyThread reader(
            [&]
            {
                for (int curve = 0; curve < 4; ++curve)
                {
                    Tests::Evaluate(*instance->GetCurves(), curve, {-0.75F, -0.25F, 0.0F});
                }
                std::int64_t count = 0;
                std::int64_t position = 0;
                instance->GetCurves()->GetRefreshes(&count, &position);
                ++reads;
            });
        std::this_thread::sleep_for(duration);
    }
    EXPECT_GT(blocks, 0);
    EXPECT_GT(saves, 0);
    EXPECT_GT(reads, 0);
}

} // namespace
