#include "Host/CHostInstance.h"

#include "Host/CPluginSession.h"
#include "Host/TestFiles.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace
{

using namespace Host;

constexpr std::uint32_t Controls = 0x656C636B;

class HostInstance : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
        instance = CHostInstance::Make(*session.GetCollection(), {2, 48000.0}, error);
        ASSERT_NE(instance, nullptr) << error;
    }

    void TearDown() override
    {
        instance.reset();
        std::string error;
        EXPECT_TRUE(session.Close(error)) << error;
    }

    CPluginSession session;
    std::unique_ptr<CHostInstance> instance;
};

TEST_F(HostInstance, RunsBlocksThroughTheModule)
{
    const std::array<float, 3> left = {1.0F, 2.0F, 3.0F};
    const std::array<float, 3> right = {4.0F, 5.0F, 6.0F};
    std::array<float, 3> leftOut = {};
    std::array<float, 3> rightOut = {};
    const std::array<const float*, 2> inputs = {left.data(), right.data()};
    const std::array<float*, 2> outputs = {leftOut.data(), rightOut.data()};
    instance->Process(inputs.data(), outputs.data(), 3);
    EXPECT_EQ(leftOut, left);
    EXPECT_EQ(rightOut, right);
}

TEST_F(HostInstance, HandsMidiEventsToOneBlockOnly)
{
    ASSERT_NE(instance->GetMidiInput(), nullptr);
    ASSERT_NE(instance->GetMidiOutput(), nullptr);
    instance->GetMidiInput()->Add(MakeMidiEvent(0, 0xB0, 1, 2));
    const std::array<float, 2> silence = {};
    std::array<float, 2> out = {};
    const std::array<const float*, 2> inputs = {&silence[0], &silence[1]};
    const std::array<float*, 2> outputs = {&out[0], &out[1]};
    instance->Process(inputs.data(), outputs.data(), 1);
    EXPECT_TRUE(instance->GetMidiInput()->GetAll().empty());
    EXPECT_TRUE(instance->GetMidiOutput()->GetAll().empty());
}

TEST_F(HostInstance, GivesTheCurvesOfTheModule)
{
    ASSERT_NE(instance->GetCurves(), nullptr);
    std::int32_t count = 0;
    EXPECT_EQ(instance->GetCurves()->GetCurveCount(&count), 0);
    EXPECT_EQ(count, 4);
}

TEST_F(HostInstance, SavesAChunkWithItsHead)
{
    std::vector<char> bytes;
    std::string error;
    ASSERT_TRUE(instance->SaveChunk(Controls, bytes, error)) << error;
    SAAXChunk head = {};
    ASSERT_GE(bytes.size(), sizeof(head));
    std::memcpy(&head, bytes.data(), sizeof(head));
    EXPECT_EQ(bytes.size(), sizeof(head) + head.size);
    EXPECT_EQ(head.chunkId, Controls);
    EXPECT_STREQ(head.name, "Complete Controls State");
}

TEST_F(HostInstance, NamesTheCallThatRefusesAChunk)
{
    std::vector<char> bytes;
    std::string error;
    EXPECT_FALSE(instance->SaveChunk(0x12345678, bytes, error));
    EXPECT_EQ(error, "GetChunkSize failed with code -20007");
}

TEST_F(HostInstance, TakesWholeChunksOnly)
{
    std::vector<char> bytes;
    std::string error;
    ASSERT_TRUE(instance->SaveChunk(Controls, bytes, error)) << error;
    EXPECT_EQ(instance->LoadChunk(bytes), 0);
    EXPECT_TRUE(instance->IsActiveChunk(bytes));
    const std::vector<char> cut(bytes.begin(), bytes.begin() + 56);
    std::vector<char> longer = bytes;
    longer.push_back('x');
    for (const std::vector<char>& other : {cut, longer, std::vector<char>(), std::vector<char>(55)})
    {
        EXPECT_EQ(instance->LoadChunk(other), -20004) << other.size();
        EXPECT_FALSE(instance->IsActiveChunk(other)) << other.size();
    }
}

TEST(CHostInstance, NeedsAnEffectWithTheChannels)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
    EXPECT_EQ(CHostInstance::Make(*session.GetCollection(), {6, 48000.0}, error), nullptr);
    EXPECT_EQ(error, "the module has no variant with 6 channels");
}

TEST(CHostInstance, ReportsAModuleThatMakesNoInstance)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(Tests::TestModule("makes_no_instance"), error)) << error;
    EXPECT_EQ(CHostInstance::Make(*session.GetCollection(), {1, 48000.0}, error), nullptr);
    EXPECT_EQ(error, "the module makes no instance");
}

TEST(CHostInstance, ReportsAnInitialisationThatFails)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
    EXPECT_EQ(CHostInstance::Make(*session.GetCollection(), {2, 0.0}, error), nullptr);
    EXPECT_EQ(error, "the instance's initialisation failed with code -20004");
}

} // namespace
