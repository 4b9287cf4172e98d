#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/Editor/CHostEditor.h"
#include "Support/CTemporaryFolder.h"
#include "Support/CVirtualDisplay.h"
#include "Support/CX11Probe.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace
{

using namespace Host;

constexpr int Left = 1;
constexpr int Right = 3;
constexpr int EscapeKey = 9;

/// The module's editor in a window of a host, on a display.
class EditorOnADisplay : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(display.GetName().empty());
        setenv("DISPLAY", display.GetName().c_str(), 1);
        probe.emplace(display.GetName());
        parent = probe->ShowWindow(100, 50, 300, 200);
        std::string error;
        ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
        instance = CHostInstance::Make(*session.GetCollection(), {2, 48000.0}, error);
        ASSERT_NE(instance, nullptr) << error;
        editor = CHostEditor::Make(*instance, error);
        ASSERT_NE(editor, nullptr) << error;
    }

    void TearDown() override
    {
        editor.reset();
        instance.reset();
        std::string error;
        EXPECT_TRUE(session.Close(error)) << error;
        unsetenv("DISPLAY");
    }

    void Open(const std::string& skin)
    {
        folder.Write("skin.xml", skin);
        std::string error;
        ASSERT_TRUE(editor->OpenInWindow(parent, error)) << error;
        Settle();
        ASSERT_TRUE(editor->LoadSkin(folder.GetPath("skin.xml"))) << editor->GetSkinMessages();
        Settle();
    }

    void Settle()
    {
        probe->Sync();
        editor->WakeFor(150);
        probe->Sync();
    }

    Tests::CVirtualDisplay display;
    Tests::CTemporaryFolder folder;
    std::optional<Tests::CX11Probe> probe;
    xcb_window_t parent = 0;
    CPluginSession session;
    std::unique_ptr<CHostInstance> instance;
    std::unique_ptr<CHostEditor> editor;
};

TEST_F(EditorOnADisplay, IsSeenInTheWindowOfTheHost)
{
    Open("<SKIN background_color=\"#204060\" width=\"120\" height=\"80\"/>");
    EXPECT_EQ(probe->ReadPixel(100, 50) & 0xFFFFFFU, 0x204060U);
    EXPECT_EQ(probe->ReadPixel(100 + 119, 50 + 79) & 0xFFFFFFU, 0x204060U);
    EXPECT_NE(probe->ReadPixel(100 + 121, 50 + 81) & 0xFFFFFFU, 0x204060U);
    EXPECT_EQ(editor->GetSize().width, 120);
}

TEST_F(EditorOnADisplay, OpensItsMenuAtAPress)
{
    Open("<SKIN><INVISIBLE_ACTION_BUTTON action_id=\"OpenMenu\" width=\"120\" height=\"80\"/></SKIN>");
    const int before = probe->CountWindows();
    probe->Move(160, 90);
    probe->Click(Left);
    Settle();
    EXPECT_GT(probe->CountWindows(), before);
    probe->Type(EscapeKey);
    Settle();
    EXPECT_EQ(probe->CountWindows(), before);
}

TEST_F(EditorOnADisplay, TurnsAPressIntoAGestureOfTheHost)
{
    Open("<SKIN><INVISIBLE_PARAM_BUTTON param_id=\"dsp.input2\" width=\"120\" height=\"80\"/></SKIN>");
    instance->GetController().TakePosts();
    probe->Move(160, 90);
    probe->Click(Left);
    Settle();
    EXPECT_EQ(instance->GetController().TakePosts().size(), 3U);
}

TEST_F(EditorOnADisplay, AsksTheHostForTheMenuOfAParameter)
{
    Open("<SKIN><INVISIBLE_PARAM_BUTTON param_id=\"dsp.input2\" width=\"120\" height=\"80\"/></SKIN>");
    std::string asked;
    editor->SetParameterMenu(
        [&asked](const char* id)
        {
            asked += id;
            return true;
        });
    instance->GetController().TakePosts();
    probe->Move(160, 90);
    probe->Press(Right);
    Settle();
    EXPECT_EQ(asked, "") << "while the button is held, no menu of the host could take the pointer";
    probe->Release(Right);
    Settle();
    EXPECT_EQ(asked, "P2");
    EXPECT_TRUE(instance->GetController().TakePosts().empty());
}

TEST_F(EditorOnADisplay, StandsTheEndOfTheHostsWindow)
{
    Open("<SKIN background_color=\"#204060\" width=\"120\" height=\"80\"/>");
    probe->Destroy(parent);
    Settle();
    editor->SetSize(300, 200);
    EXPECT_FALSE(editor->LoadSkin("none.xml"));
    Settle();
}

TEST_F(EditorOnADisplay, DoesNotOpenInAWindowThatIsNone)
{
    std::string error;
    EXPECT_FALSE(editor->OpenInWindow(0x1234567, error));
}

} // namespace
