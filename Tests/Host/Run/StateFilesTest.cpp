#include "Host/Run/StateFiles.h"

#include "Host/InstanceRig.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

namespace Host
{
namespace
{

class StateFilesTest : public testing::Test
{
protected:
    std::string Path(const char* name) const { return folder.GetPath(name); }

    Tests::CTemporaryFolder folder;
    Tests::CInstanceRig rig;
    std::string error;
};

TEST_F(StateFilesTest, StateComesBackInAnotherInstance)
{
    rig.Get().GetParameters().SetParameterValue("P4", 0.5);
    ASSERT_TRUE(SaveState(rig.Get(), Path("state"), error)) << error;
    const auto other = rig.MakeAnother();
    ASSERT_TRUE(LoadState(*other, Path("state"), error)) << error;
    EXPECT_EQ(rig.GetValue(*other, "P4"), 0.5);
    ASSERT_TRUE(SaveState(*other, Path("again"), error)) << error;
    EXPECT_EQ(folder.Read("again"), folder.Read("state"));
}

TEST_F(StateFilesTest, StateIsTheChunkAndPresetItsDocument)
{
    // The model is loaded in the background, and both must be saved after that.
    constexpr int patience = 500;
    std::string state;
    for (int i = 0; i < patience && state.find("<model><state>") == std::string::npos; ++i)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(i == 0 ? 0 : 10));
        ASSERT_TRUE(SaveState(rig.Get(), Path("state"), error)) << error;
        state = folder.Read("state");
    }
    ASSERT_TRUE(SavePreset(rig.Get(), Path("preset"), error)) << error;
    const std::string preset = folder.Read("preset");
    EXPECT_THAT(preset, testing::StartsWith("<?xml"));
    EXPECT_STREQ(state.substr(24, 32).c_str(), "Tarnwell Plugin State");
    EXPECT_EQ(state.substr(56, preset.size()), preset);
    EXPECT_EQ(state.size(), 56 + preset.size() + 58);
}

TEST_F(StateFilesTest, PresetComesBackInAnotherInstance)
{
    rig.Get().GetParameters().SetParameterValue("P2", 1.0);
    ASSERT_TRUE(SavePreset(rig.Get(), Path("a.preset"), error)) << error;
    const auto other = rig.MakeAnother();
    ASSERT_TRUE(LoadPreset(*other, Path("a.preset"), error)) << error;
    EXPECT_EQ(rig.GetValue(*other, "P2"), 1.0);
}

TEST_F(StateFilesTest, DamagedFilesLeaveTheInstanceAsItIs)
{
    rig.Get().GetParameters().SetParameterValue("P4", 0.5);
    ASSERT_TRUE(SaveState(rig.Get(), Path("state"), error)) << error;
    rig.Get().GetParameters().SetParameterValue("P4", 0.25);
    const std::string whole = folder.Read("state");
    std::string broken = whole;
    broken[56] = '?'; // The document's first letter.
    std::string otherId = whole;
    otherId[20] = 'x';
    folder.Write("cut", whole.substr(0, whole.size() - 1));
    folder.Write("head", whole.substr(0, 56));
    folder.Write("broken", broken);
    folder.Write("id", otherId);
    folder.Write("empty", "");
    for (const char* name : {"cut", "head", "broken", "id", "empty"})
    {
        EXPECT_FALSE(LoadState(rig.Get(), Path(name), error)) << name;
        EXPECT_EQ(error, "damaged state in \"" + Path(name) + '"');
    }
    EXPECT_FALSE(LoadPreset(rig.Get(), Path("state"), error));
    EXPECT_EQ(error, "damaged preset in \"" + Path("state") + '"');
    EXPECT_FALSE(LoadState(rig.Get(), Path("missing"), error));
    EXPECT_EQ(error, "cannot read \"" + Path("missing") + '"');
    EXPECT_EQ(rig.GetValue(rig.Get(), "P4"), 0.25);
}

TEST_F(StateFilesTest, SaysWhereItCannotWrite)
{
    EXPECT_FALSE(SaveState(rig.Get(), "/nowhere/state", error));
    EXPECT_EQ(error, "cannot write \"/nowhere/state\"");
    EXPECT_FALSE(SavePreset(rig.Get(), "/nowhere/preset", error));
    EXPECT_EQ(error, "cannot write \"/nowhere/preset\"");
}

} // namespace
} // namespace Host
