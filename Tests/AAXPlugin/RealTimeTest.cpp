#include "Support/RealTimeWatch.h"

#include "AAXPlugin/CInProcessPlugin.h"
#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <random>
#include <thread>

namespace
{

using namespace Host;
using Tests::CChannels;
using Tests::CRealTimeWatch;

constexpr std::uint32_t State = 0x746E776C;
constexpr int Blocks = 10000;

class RealTime : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!CRealTimeWatch::IsAvailable())
        {
            GTEST_SKIP() << "the sanitizer has taken the places of the functions to watch";
        }
    }
};

TEST_F(RealTime, WatchSeesWhatIsForbidden)
{
    const struct
    {
        const char* first;
        void (*act)();
    } rows[] = {{"malloc",
                 []()
                 {
                     void* volatile block = std::malloc(8);
                     std::free(block);
                 }},
                {"pthread_mutex_lock",
                 []()
                 {
                     std::mutex mutex;
                     const std::lock_guard lock(mutex);
                 }},
                {"aligned_alloc",
                 []()
                 {
                     int* volatile number = new int;
                     delete number;
                 }},
                {"fopen", []() { static_cast<void>(std::fopen("/nowhere", "r")); }},
                {"nanosleep", []() { std::this_thread::sleep_for(std::chrono::nanoseconds(1)); }}};
    for (const auto& row : rows)
    {
        std::size_t count = 0;
        std::string first;
        {
            const CRealTimeWatch watch;
            row.act();
            count = watch.GetCount();
            first = watch.GetFirst();
        }
        EXPECT_GT(count, 0U) << row.first;
        EXPECT_EQ(first, row.first);
    }
}

TEST_F(RealTime, WatchSeesNothingWithoutACause)
{
    std::size_t count = 0;
    {
        const CRealTimeWatch watch;
        std::mutex mutex;
        if (mutex.try_lock())
        {
            mutex.unlock();
        }
        count = watch.GetCount();
    }
    EXPECT_EQ(count, 0U);
}

TEST_F(RealTime, WatchSeesInsideTheModule)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
    const auto instance = CHostInstance::Make(*session.GetCollection(), {2, 44100.0}, error);
    ASSERT_NE(instance, nullptr) << error;
    std::uint32_t size = 0;
    std::size_t count = 0;
    {
        // The state becomes a text, which takes memory of the module's own.
        const CRealTimeWatch watch;
        instance->GetParameters().GetChunkSize(State, &size);
        count = watch.GetCount();
    }
    EXPECT_GT(count, 0U);
}

/// The state of an instance with all its input parameters bound to controllers 0 to 6.
std::vector<char> StateWithBoundControllers()
{
    Tests::CInProcessPlugin plugin;
    const auto instance = plugin.Make();
    auto& internals = Tests::InternalsOf(*instance);
    internals.GetUseDefaultInputMIDI().SetValue(false);
    for (int i = 0; i < internals.GetInputMIDISettings().GetCount(); ++i)
    {
        internals.GetInputMIDISettings()[i].SetEnabled(true);
        internals.GetInputMIDISettings()[i].SetChannel(0);
        internals.GetInputMIDISettings()[i].SetNumber(i);
    }
    std::vector<char> bytes;
    std::string error;
    EXPECT_TRUE(instance->SaveChunk(State, bytes, error)) << error;
    return bytes;
}

/// What a host does to an instance before a block: parameters, controllers, and signal or silence.
void Prepare(CHostInstance& instance, int block, std::mt19937& engine, CChannels& inputs)
{
    if (block % 3 == 0)
    {
        const char* id = nullptr;
        instance.GetParameters().GetParameterId(static_cast<int>(engine() % 7), &id);
        instance.GetParameters().SetParameterValue(id, static_cast<double>(engine() % 101) / 100.0);
    }
    if (block % 5 == 0)
    {
        const auto number = static_cast<std::uint8_t>(engine() % 8);
        instance.GetMidiInput()->Add(
            MakeMidiEvent(0, 0xB3, number, static_cast<std::uint8_t>(engine() % 128)));
        instance.GetMidiInput()->Add(MakeMidiEvent(5, 0x90, 64, 100));
    }
    const bool silent = block % 1000 > 700;
    for (std::size_t channel = 0; channel < inputs.GetCount(); ++channel)
    {
        for (float& sample : inputs[channel])
        {
            sample = silent ? 0.0F : static_cast<float>(engine() % 2001) / 1000.0F - 1.0F;
        }
    }
}

/// Runs the blocks, with a reader at the curves on another thread.
void ExpectNoForbiddenCalls(CHostInstance& instance, int channels)
{
    constexpr std::size_t longest = 1024;
    CChannels inputs(channels, longest);
    CChannels outputs(channels, longest);
    std::atomic<bool> done = false;
    std::thread reader(
        [&]
        {
            const std::vector<float> x(200, -0.5F);
            std::vector<float> y(200);
            while (!done)
            {
                instance.GetCurves()->EvaluateCurve(0, x.data(), 200, y.data());
                std::this_thread::sleep_for(std::chrono::microseconds(50));
            }
        });
    std::mt19937 engine{5};
    std::size_t forbidden = 0;
    std::string first;
    for (int block = 0; block < Blocks; ++block)
    {
        Prepare(instance, block, engine, inputs);
        const auto samples = static_cast<std::int32_t>(engine() % (longest + 1));
        const CRealTimeWatch watch;
        instance.Process(inputs.Get(), outputs.Get(), samples);
        forbidden += watch.GetCount();
        first = first.empty() ? watch.GetFirst() : first;
    }
    done = true;
    reader.join();
    EXPECT_EQ(forbidden, 0U) << first;
    std::int64_t refreshes = 0;
    std::int64_t position = 0;
    EXPECT_EQ(instance.GetCurves()->GetRefreshes(&refreshes, &position), 0);
    EXPECT_GT(refreshes, 100);
}

TEST_F(RealTime, ModulesCallbackNeitherAllocatesNorWaits)
{
    const std::vector<char> state = StateWithBoundControllers();
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
    for (const int channels : {1, 2})
    {
        const auto instance = CHostInstance::Make(*session.GetCollection(), {channels, 44100.0}, error);
        ASSERT_NE(instance, nullptr) << error;
        instance->LoadChunk(state);
        instance->GetController().TakePosts();
        ExpectNoForbiddenCalls(*instance, channels);
        EXPECT_GT(instance->GetController().TakePosts().size(), 100U) << "controllers move parameters";
    }
    EXPECT_TRUE(session.Close(error)) << error;
}

} // namespace
