#include "AAXPlugin/CInProcessPlugin.h"
#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <random>

namespace
{

using namespace Host;
using testing::ElementsAre;
using testing::HasSubstr;
using Tests::CChannels;
using Tests::Evaluate;

constexpr std::uint32_t Controls = 0x656C636B;
constexpr std::uint32_t State = 0x746E776C;

/// Instances of the module as it ships.
class ModuleInstance : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
    }

    void TearDown() override
    {
        std::string error;
        EXPECT_TRUE(session.Close(error)) << error;
    }

    std::unique_ptr<CHostInstance> Make(int channels, double sampleRate)
    {
        std::string error;
        auto instance = CHostInstance::Make(*session.GetCollection(), {channels, sampleRate}, error);
        EXPECT_NE(instance, nullptr) << error;
        return instance;
    }

    CPluginSession session;
};

/// Any bits at all: numbers, infinities, NaN with whatever payload.
class CNoise
{
public:
    void Fill(CChannels& channels)
    {
        for (std::size_t channel = 0; channel < channels.GetCount(); ++channel)
        {
            for (float& sample : channels[channel])
            {
                sample = std::bit_cast<float>(static_cast<std::uint32_t>(engine()));
            }
        }
    }

private:
    std::mt19937 engine{20};
};

bool SameBits(const std::vector<float>& a, const std::vector<float>& b)
{
    const auto sameBits = [](float x, float y)
    { return std::bit_cast<std::uint32_t>(x) == std::bit_cast<std::uint32_t>(y); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), sameBits);
}

/// Runs one block of noise and compares what comes out, bit by bit, up to the end of the block and no
/// further.
void ExpectPassed(CHostInstance& instance, int channels, int samples, CNoise& noise)
{
    constexpr float untouched = 77.0F;
    const auto size = static_cast<std::size_t>(samples);
    CChannels inputs(channels, size);
    CChannels outputs(channels, size + 1);
    noise.Fill(inputs);
    outputs.Fill(untouched);
    instance.Process(inputs.Get(), outputs.Get(), samples);
    for (std::size_t channel = 0; channel < inputs.GetCount(); ++channel)
    {
        EXPECT_EQ(outputs[channel].back(), untouched);
        outputs[channel].pop_back();
        EXPECT_TRUE(SameBits(outputs[channel], inputs[channel]))
            << samples << " samples, channel " << channel;
    }
}

TEST_F(ModuleInstance, ListsTheParametersOfTheScope)
{
    const auto instance = Make(2, 48000.0);
    const char* const expected[] = {"MasterBypassID", "P1", "P2", "P3", "P4", "P5", "P6"};
    const char* const names[] = {"Bypass", "Stereo Mode",   "View Mode",        "Sync",
                                 "Delay",  "Trigger Value", "Trigger Direction"};
    std::int32_t count = 0;
    ASSERT_EQ(instance->GetParameters().GetParameterCount(&count), 0);
    ASSERT_EQ(count, 7);
    for (int i = 0; i < count; ++i)
    {
        const char* id = nullptr;
        char name[64] = {};
        ASSERT_EQ(instance->GetParameters().GetParameterId(i, &id), 0);
        EXPECT_STREQ(id, expected[i]);
        ASSERT_EQ(instance->GetParameters().GetParameterName(id, name, sizeof(name)), 0);
        EXPECT_STREQ(name, names[i]);
    }
}

TEST_F(ModuleInstance, PassesEveryBlockSizeAtEveryRateBitForBit)
{
    CNoise noise;
    for (const int channels : {1, 2})
    {
        for (const double rate : {8000.0, 11025.0, 44100.0, 48000.0, 96000.0, 192000.0})
        {
            const auto instance = Make(channels, rate);
            ASSERT_NE(instance, nullptr);
            for (const int samples : {1, 2, 3, 8192, 31, 64, 65, 127, 512, 1, 1023, 4096, 4097, 7, 0, 333})
            {
                ExpectPassed(*instance, channels, samples, noise);
            }
        }
    }
}

TEST_F(ModuleInstance, PassesAudioWhileParametersMoveAndBypassToggles)
{
    CNoise noise;
    std::mt19937 engine{7};
    for (const int channels : {1, 2})
    {
        const auto instance = Make(channels, 44100.0);
        for (int block = 0; block < 500; ++block)
        {
            const char* id = nullptr;
            ASSERT_EQ(instance->GetParameters().GetParameterId(static_cast<int>(engine() % 7), &id), 0);
            const double value = static_cast<double>(engine() % 1001) / 1000.0;
            EXPECT_EQ(instance->GetParameters().SetParameterValue(id, value), 0);
            ExpectPassed(*instance, channels, static_cast<int>(engine() % 700), noise);
        }
    }
}

TEST_F(ModuleInstance, PassesAudioInPlace)
{
    const auto instance = Make(2, 48000.0);
    CNoise noise;
    CChannels buffers(2, 256);
    noise.Fill(buffers);
    const std::vector<float> left = buffers[0];
    const std::vector<float> right = buffers[1];
    instance->Process(buffers.Get(), buffers.Get(), 256);
    EXPECT_TRUE(SameBits(buffers[0], left));
    EXPECT_TRUE(SameBits(buffers[1], right));
}

TEST_F(ModuleInstance, ShowsTheSignalInItsCurves)
{
    constexpr int rate = 8000;
    const auto instance = Make(2, rate);
    ASSERT_NE(instance->GetCurves(), nullptr);
    CChannels inputs(2, rate);
    CChannels outputs(2, rate);
    inputs[0].assign(rate, 0.5F);
    inputs[1].assign(rate, -0.25F);
    for (int second = 0; second < 3; ++second)
    {
        instance->Process(inputs.Get(), outputs.Get(), rate);
    }
    const std::vector<float> times = {-0.9F, -0.5F, -0.1F};
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 0, times), testing::Each(testing::FloatNear(0.5F, 1e-6F)));
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 2, times), testing::Each(testing::FloatNear(-0.25F, 1e-6F)));
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 1, {0.5F}), ElementsAre(1.0F)) << "all in one bin";
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 1, {-0.5F, 0.0F}), ElementsAre(0.0F, 0.0F));
}

TEST_F(ModuleInstance, MonoHostLeavesTheSecondChannelAtZero)
{
    constexpr int rate = 8000;
    const auto instance = Make(1, rate);
    CChannels inputs(1, rate);
    CChannels outputs(1, rate);
    inputs.Fill(0.5F);
    instance->Process(inputs.Get(), outputs.Get(), rate);
    instance->Process(inputs.Get(), outputs.Get(), rate);
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 0, {-0.5F}), ElementsAre(testing::FloatNear(0.5F, 1e-6F)));
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 2, {-0.5F}), ElementsAre(0.0F));
    EXPECT_THAT(Evaluate(*instance->GetCurves(), 3, {0.0F}), ElementsAre(1.0F));
}

TEST_F(ModuleInstance, RefreshesFiftyTimesASecondOfAudio)
{
    const auto instance = Make(2, 44100.0);
    CChannels inputs(2, 98);
    CChannels outputs(2, 98);
    inputs.Fill(0.5F);
    std::int64_t count = -1;
    std::int64_t position = -1;
    EXPECT_EQ(instance->GetCurves()->GetRefreshes(&count, &position), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(position, 0);
    // 882 samples are nine blocks of 98; the first block is due at once.
    for (int block = 0; block < 1 + 9 * 50; ++block)
    {
        instance->Process(inputs.Get(), outputs.Get(), 98);
    }
    EXPECT_EQ(instance->GetCurves()->GetRefreshes(&count, &position), 0);
    EXPECT_EQ(count, 51);
    EXPECT_EQ(position, 98 + 44100);
}

TEST_F(ModuleInstance, SavesAndRestoresBothChunks)
{
    const auto instance = Make(2, 48000.0);
    instance->GetParameters().SetParameterValue("P5", 0.75);
    std::string error;
    for (const std::uint32_t id : {Controls, State})
    {
        std::vector<char> bytes;
        ASSERT_TRUE(instance->SaveChunk(id, bytes, error)) << error;
        SAAXChunk head = {};
        std::memcpy(&head, bytes.data(), sizeof(head));
        EXPECT_EQ(head.manufacturerId, 0x746E776CU);
        EXPECT_EQ(head.productId, 0x35383436U);
        EXPECT_EQ(head.pluginId, 0U);
        const auto other = Make(1, 44100.0);
        EXPECT_FALSE(other->IsActiveChunk(bytes));
        EXPECT_EQ(other->LoadChunk(bytes), id == State ? -20007 : 0);
        EXPECT_TRUE(other->IsActiveChunk(bytes));
        double value = 0.0;
        EXPECT_EQ(other->GetParameters().GetParameterValue("P5", &value), 0);
        EXPECT_EQ(value, 0.75);
    }
}

TEST_F(ModuleInstance, InstancesShareNothing)
{
    const auto first = Make(2, 48000.0);
    const auto second = Make(2, 48000.0);
    first->GetParameters().SetParameterValue("P4", 1.0);
    double value = -1.0;
    EXPECT_EQ(second->GetParameters().GetParameterValue("P4", &value), 0);
    EXPECT_EQ(value, 0.0);
    CChannels inputs(2, 64);
    CChannels outputs(2, 64);
    inputs.Fill(0.5F);
    first->Process(inputs.Get(), outputs.Get(), 64);
    std::int64_t count = -1;
    std::int64_t position = -1;
    EXPECT_EQ(second->GetCurves()->GetRefreshes(&count, &position), 0);
    EXPECT_EQ(count, 0);
}

TEST(ModuleWithInstance, StaysLoadedUntilTheInstanceIsGone)
{
    auto session = std::make_unique<CPluginSession>();
    std::string error;
    ASSERT_TRUE(session->Open(SCOPE_BANK_MODULE, error)) << error;
    auto instance = CHostInstance::Make(*session->GetCollection(), {2, 48000.0}, error);
    ASSERT_NE(instance, nullptr) << error;
    EXPECT_FALSE(session->Close(error));
    EXPECT_THAT(error, HasSubstr("still holds objects"));
    instance.reset();
    // The session has let go of the module without unloading it; that is left to this test.
    void* handle = dlopen(SCOPE_BANK_MODULE, RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
    ASSERT_NE(handle, nullptr);
    dlclose(handle);
    dlclose(handle);
}

TEST(ModuleWithInstance, HasVariantsForOneAndTwoChannelsOnly)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
    EXPECT_EQ(CHostInstance::Make(*session.GetCollection(), {3, 48000.0}, error), nullptr);
    EXPECT_EQ(error, "the module has no variant with 3 channels");
}

} // namespace
