#include "AAXPlugin/CInProcessPlugin.h"
#include "Host/CPluginSession.h"
#include "Host/Editor/CHostEditor.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <thread>

namespace
{

using namespace Host;
using Tests::CChannels;

constexpr double SampleRate = 48000.0;
constexpr int Block = 480;

// The skin: two graphs, one below the other, each as wide as the window.
constexpr int GraphWidth = 500;
constexpr int GraphHeight = 101;
const char* const TwoGraphs = "<SKIN background_color=\"#000000\"><COLUMN>"
                              "<CURVE_GRAPH curve_id=\"dsp.output_curve0\" width=\"500\" height=\"101\" "
                              "color=\"#00FF00\" anti_alias=\"false\"/>"
                              "<CURVE_GRAPH curve_id=\"dsp.output_curve1\" width=\"500\" height=\"101\" "
                              "color=\"#FF0000\" anti_alias=\"false\"/>"
                              "</COLUMN></SKIN>";

// The audio: so long at one level, then at another.
constexpr float FirstLevel = 0.5F;
constexpr float SecondLevel = -0.25F;
constexpr double HalfSeconds = 0.5;

/// Runs seconds of audio whose last second is one half at each level.
void PlaySteps(CHostInstance& instance, int seconds)
{
    CChannels inputs(2, Block);
    CChannels outputs(2, Block);
    const int blocksPerHalf = static_cast<int>(SampleRate * HalfSeconds) / Block;
    for (int half = 0; half < 2 * seconds; ++half)
    {
        inputs.Fill(half % 2 == 0 ? FirstLevel : SecondLevel);
        for (int block = 0; block < blocksPerHalf; ++block)
        {
            instance.Process(inputs.Get(), outputs.Get(), Block);
        }
    }
}

/// Where a value from -1 to 1 stands in a graph, from the top.
int RowOf(float value)
{
    return static_cast<int>(std::floor((1.0 - (double{value} + 1.0) / 2.0) * (GraphHeight - 1) + 0.5));
}

/// The rows of a column where that channel of the colour is bright, from the top of a graph that begins at
/// that row.
std::vector<int> FindRows(const CPicture& picture, int x, int top, std::uint32_t channel)
{
    std::vector<int> rows;
    for (int y = 0; y < GraphHeight; ++y)
    {
        const std::uint32_t pixel = picture.pixels[static_cast<std::size_t>((top + y) * picture.width + x)];
        if ((pixel & channel) > channel / 2)
        {
            rows.push_back(y);
        }
    }
    return rows;
}

/// The editor of the module as it ships.
class ModuleEditor : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
        instance = CHostInstance::Make(*session.GetCollection(), {2, SampleRate}, error);
        ASSERT_NE(instance, nullptr) << error;
    }

    void TearDown() override
    {
        instance.reset();
        std::string error;
        EXPECT_TRUE(session.Close(error)) << error;
    }

    std::unique_ptr<CHostEditor> Open(int scale = 1)
    {
        std::string error;
        auto editor = CHostEditor::Make(*instance, error);
        EXPECT_NE(editor, nullptr) << error;
        EXPECT_TRUE(editor->OpenOffscreen(scale, error)) << error;
        return editor;
    }

    std::string WriteSkin(const std::string& text) const
    {
        folder.Write("skin.xml", text);
        return folder.GetPath("skin.xml");
    }

    Tests::CTemporaryFolder folder;
    CPluginSession session;
    std::unique_ptr<CHostInstance> instance;
};

TEST_F(ModuleEditor, ShowsTheLastSecondAndItsHistogram)
{
    const auto editor = Open();
    ASSERT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs))) << editor->GetSkinMessages();
    EXPECT_EQ(editor->GetSize().width, GraphWidth);
    EXPECT_EQ(editor->GetSize().height, 2 * GraphHeight);
    PlaySteps(*instance, 3);
    editor->WakeFor(120);
    const CPicture picture = editor->TakePicture();
    ASSERT_EQ(picture.width, GraphWidth);
    ASSERT_EQ(picture.height, 2 * GraphHeight);

    // Up to one refresh, 20 ms, may be missing at the end of the trace.
    const int slack = GraphWidth / 50 + 2;
    for (int x = slack; x < GraphWidth - slack; ++x)
    {
        if (std::abs(x - GraphWidth / 2) > slack)
        {
            const float level = x < GraphWidth / 2 ? FirstLevel : SecondLevel;
            EXPECT_THAT(FindRows(picture, x, 0, 0x00FF00U),
                        testing::ElementsAre(
                            testing::AllOf(testing::Ge(RowOf(level) - 1), testing::Le(RowOf(level) + 1))))
                << "column " << x;
        }
    }

    // Both levels are as frequent, so that both bins are full; all other values never came.
    const auto columnOf = [](float value) { return (value + 1.0F) / 2.0F * GraphWidth; };
    const auto isNear = [&](int x, float value)
    { return std::abs(static_cast<float>(x) - columnOf(value)) < 15.0F; };
    int atTop = 0;
    for (int x = 2; x < GraphWidth - 2; ++x)
    {
        const std::vector<int> rows = FindRows(picture, x, GraphHeight, 0xFF0000U);
        ASSERT_FALSE(rows.empty()) << "column " << x;
        if (rows.front() <= 4)
        {
            EXPECT_TRUE(isNear(x, FirstLevel) || isNear(x, SecondLevel)) << "column " << x;
            ++atTop;
        }
        else if (!isNear(x, FirstLevel) && !isNear(x, SecondLevel))
        {
            EXPECT_GE(rows.front(), GraphHeight - 2) << "column " << x;
        }
    }
    EXPECT_GE(atTop, 2);
}

TEST_F(ModuleEditor, OpensAtTheScaleOfTheDevice)
{
    const auto editor = Open(2);
    ASSERT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs)));
    EXPECT_EQ(editor->GetSize().width, 2 * GraphWidth);
    EXPECT_EQ(editor->TakePicture().width, 2 * GraphWidth);
}

TEST_F(ModuleEditor, TakesAnotherSizeFromTheHost)
{
    const auto editor = Open();
    ASSERT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs)));
    editor->SetSize(640, 300);
    EXPECT_EQ(editor->TakePicture().width, 640);
    EXPECT_EQ(editor->TakePicture().height, 300);
}

TEST_F(ModuleEditor, ASkinOfAnotherSizeAsksTheHostForIt)
{
    const auto editor = Open();
    std::pair<int, int> asked;
    editor->SetSizeListener([&asked](int width, int height) { asked = {width, height}; });
    ASSERT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs)));
    EXPECT_EQ(asked, (std::pair<int, int>{GraphWidth, 2 * GraphHeight}));
}

TEST_F(ModuleEditor, SaysWhatIsWrongWithASkinAndGoesOn)
{
    const auto editor = Open();
    EXPECT_FALSE(editor->LoadSkin(WriteSkin("<SKIN>\n<TABLE_ROW/>\n</SKIN>")));
    EXPECT_THAT(editor->GetSkinMessages(),
                testing::HasSubstr("error\tskin.xml:2\tCannot TABLE_ROW element outside a TABLE element."));
    EXPECT_FALSE(editor->LoadSkin(folder.GetPath("none.xml")));
    EXPECT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs)));
}

TEST_F(ModuleEditor, FindsTheFontsOfTheProduct)
{
    const auto editor = Open();
    ASSERT_TRUE(editor->LoadSkin(WriteSkin("<SKIN background_color=\"#000000\"><TEXT value=\"MMMM\" "
                                           "text_color=\"#FFFFFF\" width=\"80\" height=\"30\"/></SKIN>")));
    EXPECT_THAT(editor->GetSkinMessages(), testing::Not(testing::HasSubstr("Could not load font")));
    const CPicture picture = editor->TakePicture();
    EXPECT_THAT(picture.pixels, testing::Contains(0xFFFFFFFFU));
}

void OpenAndCloseWhileAudioRuns(CHostInstance& instance, const std::string& skin, int times)
{
    std::atomic<bool> done{false};
    std::thread audio(
        [&]
        {
            CChannels inputs(2, Block);
            CChannels outputs(2, Block);
            inputs.Fill(FirstLevel);
            while (!done)
            {
                instance.Process(inputs.Get(), outputs.Get(), Block);
                std::this_thread::yield();
            }
        });
    for (int i = 0; i < times; ++i)
    {
        std::string error;
        const auto editor = CHostEditor::Make(instance, error);
        ASSERT_NE(editor, nullptr) << error;
        ASSERT_TRUE(editor->OpenOffscreen(1, error)) << error;
        EXPECT_TRUE(editor->LoadSkin(skin));
        editor->Wake();
        EXPECT_FALSE(editor->TakePicture().IsEmpty());
    }
    done = true;
    audio.join();
}

TEST_F(ModuleEditor, OpensAndClosesWhileAudioRuns)
{
    OpenAndCloseWhileAudioRuns(*instance, WriteSkin(TwoGraphs), 20);
}

TEST_F(ModuleEditor, DISABLED_OpensAndClosesAThousandTimesWhileAudioRuns)
{
    OpenAndCloseWhileAudioRuns(*instance, WriteSkin(TwoGraphs), 1000);
}

TEST_F(ModuleEditor, StatesMoveOnAnotherThreadMeanwhile)
{
    constexpr std::uint32_t stateChunk = 0x746E776C;
    const auto editor = Open();
    ASSERT_TRUE(editor->LoadSkin(WriteSkin(TwoGraphs)));
    std::atomic<bool> done{false};
    std::thread host(
        [&]
        {
            for (int i = 0; i < 50; ++i)
            {
                std::vector<char> bytes;
                std::string error;
                EXPECT_TRUE(instance->SaveChunk(stateChunk, bytes, error)) << error;
                instance->LoadChunk(bytes);
            }
            done = true;
        });
    while (!done)
    {
        editor->Wake();
    }
    host.join();
}

/// The editor of the plug-in that is linked into the tests, without a screen: its inside can be reached.
class LinkedEditor : public testing::Test
{
protected:
    /// With a skin of that body. Null if it does not load.
    Mirel::GUI::COffscreenPlatform* Open(const std::string& body)
    {
        folder.Write("skin.xml", "<SKIN>" + body + "</SKIN>");
        std::string error;
        editor = CHostEditor::Make(*instance, error);
        EXPECT_TRUE(editor->OpenOffscreen(1, error)) << error;
        EXPECT_TRUE(editor->LoadSkin(folder.GetPath("skin.xml"))) << editor->GetSkinMessages();
        auto* made = dynamic_cast<Mirel::Audio::Plugin::CAudioPluginSkinGUI*>(
            Tests::InternalsOf(*instance).GetEditor().Get());
        return made == nullptr ? nullptr : dynamic_cast<Mirel::GUI::COffscreenPlatform*>(made->GetPlatform());
    }

    Tests::CInProcessPlugin plugin;
    Tests::CTemporaryFolder folder;
    std::unique_ptr<CHostInstance> instance = plugin.Make();
    std::unique_ptr<CHostEditor> editor;
};

TEST_F(LinkedEditor, APressOnAButtonIsOneGestureForTheHost)
{
    auto* platform = Open("<INVISIBLE_PARAM_BUTTON param_id=\"dsp.input2\" width=\"40\" height=\"40\"/>");
    ASSERT_NE(platform, nullptr);
    instance->GetController().TakePosts();
    platform->MovePointer({20, 20});
    platform->PressButton(Mirel::GUI::EMouseButton::Left);
    platform->ReleaseButton(Mirel::GUI::EMouseButton::Left);
    editor->WakeFor(50);

    const std::vector<CAutomationPost> posts = instance->GetController().TakePosts();
    ASSERT_EQ(posts.size(), 3U);
    EXPECT_EQ(posts[0].kind, CAutomationPost::EKind::Touch);
    EXPECT_EQ(posts[1].kind, CAutomationPost::EKind::Value);
    EXPECT_EQ(posts[2].kind, CAutomationPost::EKind::Release);
    for (const CAutomationPost& post : posts)
    {
        EXPECT_EQ(post.parameter, 2);
    }
    EXPECT_GT(posts[1].normalized, 0.0);
}

TEST_F(LinkedEditor, ARightClickOnAKnobAsksTheHostForItsMenu)
{
    auto* platform = Open("<INVISIBLE_PARAM_BUTTON param_id=\"dsp.input4\" width=\"40\" height=\"40\"/>");
    ASSERT_NE(platform, nullptr);
    std::vector<std::string> asked;
    editor->SetParameterMenu(
        [&asked](const char* id)
        {
            asked.emplace_back(id);
            return true;
        });
    instance->GetController().TakePosts();
    const auto click = [&]
    {
        platform->MovePointer({20, 20});
        platform->PressButton(Mirel::GUI::EMouseButton::Right);
        platform->ReleaseButton(Mirel::GUI::EMouseButton::Right);
        editor->WakeFor(50);
    };
    click();
    EXPECT_THAT(asked, testing::ElementsAre("P4"));
    editor->SetParameterMenu(nullptr);
    click();
    EXPECT_THAT(asked, testing::SizeIs(1));
    EXPECT_THAT(instance->GetController().TakePosts(), testing::IsEmpty()) << "nothing was moved";
}

} // namespace
