#include "AAXPlugin/CAAXPluginParameters.h"
#include "AAXPlugin/CInProcessPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace
{

using testing::HasSubstr;
using Tests::InternalsOf;

constexpr std::uint32_t Controls = 0x656C636B;
constexpr std::uint32_t State = 0x746E776C;

class PluginChunks : public testing::Test
{
protected:
    float ValueOf(int index) { return InternalsOf(*instance).GetInputValues()[index].GetValue(); }

    std::string StateText()
    {
        std::vector<char> bytes;
        std::string error;
        EXPECT_TRUE(instance->SaveChunk(State, bytes, error)) << error;
        return bytes.data() + 56;
    }

    Tests::CInProcessPlugin plugin;
    std::unique_ptr<Host::CHostInstance> instance = plugin.Make();
    AAX_IEffectParameters& parameters = instance->GetParameters();
};

TEST_F(PluginChunks, OffersControlsAndStateAsChunks)
{
    std::int32_t count = 0;
    EXPECT_EQ(parameters.GetChunkCount(&count), 0);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(parameters.GetChunkCount(nullptr), -20004);
    std::uint32_t id = 0;
    EXPECT_EQ(parameters.GetChunkId(0, &id), 0);
    EXPECT_EQ(id, Controls);
    EXPECT_EQ(parameters.GetChunkId(1, &id), 0);
    EXPECT_EQ(id, State);
    EXPECT_EQ(parameters.GetChunkId(2, &id), -20004);
    EXPECT_EQ(parameters.GetChunkId(-1, &id), -20004);
    EXPECT_EQ(parameters.GetChunkId(1, nullptr), -20004);
    std::uint32_t size = 9;
    EXPECT_EQ(parameters.GetChunkSize(0x12345678, &size), -20007);
    EXPECT_EQ(size, 0U);
    EXPECT_EQ(parameters.GetChunkSize(State, nullptr), -20004);
    EXPECT_EQ(parameters.GetChunk(State, nullptr), -20004);
    EXPECT_EQ(parameters.SetChunk(State, nullptr), -20004);
    EXPECT_EQ(parameters.CompareActiveChunk(nullptr, nullptr), -20004);
}

TEST_F(PluginChunks, StateChunkIsTheTextWithItsZeroAnd57More)
{
    parameters.SetParameterValue("P4", 0.5);
    std::uint32_t size = 0;
    ASSERT_EQ(parameters.GetChunkSize(State, &size), 0);
    std::vector<char> memory(56 + size, '#');
    auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
    ASSERT_EQ(parameters.GetChunk(State, chunk), 0);
    const std::string text = memory.data() + 56;
    EXPECT_EQ(chunk->size, size);
    EXPECT_EQ(size, text.size() + 58);
    EXPECT_EQ(chunk->chunkId, State);
    std::string name = "Tarnwell Plugin State";
    name.resize(32);
    EXPECT_EQ(std::string(chunk->name, 32), name);
    EXPECT_THAT(text, HasSubstr("<Preset"));
    EXPECT_THAT(text, HasSubstr("param3"));
    EXPECT_THAT(text, HasSubstr("150"));
}

TEST_F(PluginChunks, StateChunkNeedsRoomForTheStateAsItIsNow)
{
    std::uint32_t size = 0;
    ASSERT_EQ(parameters.GetChunkSize(State, &size), 0);
    InternalsOf(*instance).SetCurrentPresetName(std::string(500, 'n'));
    std::vector<char> memory(56 + size, '#');
    EXPECT_EQ(parameters.GetChunk(State, reinterpret_cast<SAAXChunk*>(memory.data())), -20008);
    EXPECT_EQ(memory, std::vector<char>(56 + size, '#')) << "nothing is written";

    ASSERT_EQ(parameters.GetChunkSize(State, &size), 0);
    memory.assign(56 + size, '#');
    InternalsOf(*instance).SetCurrentPresetName("n");
    EXPECT_EQ(parameters.GetChunk(State, reinterpret_cast<SAAXChunk*>(memory.data())), 0);
    EXPECT_LT(reinterpret_cast<SAAXChunk*>(memory.data())->size, size) << "that of the state written";
}

TEST_F(PluginChunks, StateComesBackFromItsChunk)
{
    parameters.SetParameterValue("MasterBypassID", 1.0);
    parameters.SetParameterValue("P2", 1.0);
    parameters.SetParameterValue("P5", 0.875);
    std::vector<char> bytes;
    std::string error;
    ASSERT_TRUE(instance->SaveChunk(State, bytes, error)) << error;
    const auto other = plugin.Make();
    EXPECT_FALSE(other->IsActiveChunk(bytes));
    EXPECT_EQ(other->LoadChunk(bytes), -20007) << "what the base answers to a chunk that it does not know";
    EXPECT_EQ(InternalsOf(*other).GetInputValues()[0].GetValue(), 1.0F);
    EXPECT_EQ(InternalsOf(*other).GetInputValues()[2].GetValue(), 2.0F);
    EXPECT_EQ(InternalsOf(*other).GetInputValues()[5].GetValue(), 0.75F);
    EXPECT_TRUE(other->IsActiveChunk(bytes));
}

TEST_F(PluginChunks, ControlsComeBackFromTheirChunk)
{
    parameters.SetParameterValue("P4", 0.25);
    std::vector<char> bytes;
    std::string error;
    ASSERT_TRUE(instance->SaveChunk(Controls, bytes, error)) << error;
    EXPECT_EQ(bytes.size(), 56U + 4 + (20 + 4) + 6 * (8 + 4));
    parameters.SetParameterValue("P4", 0.5);
    EXPECT_FALSE(instance->IsActiveChunk(bytes));
    EXPECT_EQ(instance->LoadChunk(bytes), 0);
    EXPECT_EQ(ValueOf(4), 75.0F);
    EXPECT_TRUE(instance->IsActiveChunk(bytes));
}

TEST_F(PluginChunks, UnchangedStateIsEqualAndAChangedOneIsNot)
{
    std::vector<char> bytes;
    std::string error;
    ASSERT_TRUE(instance->SaveChunk(State, bytes, error)) << error;
    EXPECT_TRUE(instance->IsActiveChunk(bytes));
    parameters.SetParameterValue("P3", 1.0);
    EXPECT_FALSE(instance->IsActiveChunk(bytes));
}

TEST_F(PluginChunks, StateChunkOfSize57OrLessIsIgnoredAndNotEqual)
{
    parameters.SetParameterValue("P4", 0.25);
    const std::string before = StateText();
    std::vector<char> memory(56 + 57);
    auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
    chunk->chunkId = State;
    for (const std::uint32_t size : {0U, 57U})
    {
        chunk->size = size;
        EXPECT_EQ(parameters.SetChunk(State, chunk), -20007);
        EXPECT_EQ(StateText(), before);
        std::int32_t equal = 1;
        EXPECT_EQ(parameters.CompareActiveChunk(chunk, &equal), 0);
        EXPECT_EQ(equal, 0);
    }
}

TEST_F(PluginChunks, StateChunkThatCannotBeReadLeavesTheStateAndGivesTheBasesResult)
{
    parameters.SetParameterValue("P4", 0.25);
    const std::string before = StateText();
    for (const std::string text : {"<Preset", "not a document", "<Preset></Present>"})
    {
        std::vector<char> memory(56 + text.size() + 58);
        auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
        chunk->chunkId = State;
        chunk->size = static_cast<std::uint32_t>(text.size() + 58);
        text.copy(memory.data() + 56, text.size());
        EXPECT_EQ(parameters.SetChunk(State, chunk), -20007) << text;
        EXPECT_EQ(StateText(), before) << text;
    }
}

} // namespace
