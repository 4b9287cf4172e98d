#include "AAXPlugin/CPlayedEditor.h"
#include "AAXPlugin/CRandomHands.h"
#include "AAXPlugin/CRunningAudio.h"
#include "Support/CTemporaryFolder.h"
#include "Support/DataFolder.h"
#include "Support/Environment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace
{

using namespace Host;
using namespace Tests;
using namespace Mirel::GUI;

/// Sanitizers take many times as long for the long lines of the XY skin.
#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// SCOPE_BANK_GESTURES of them on the factory skin; half of that on each other skin.
int GetGestureCount()
{
    constexpr int usual = 300;
    return static_cast<int>(GetEnvironmentNumber("SCOPE_BANK_GESTURES", usual));
}

/// Gives up, or names a preset or a skin as is asked for; keeps no question open.
class CHastyDialogs : public CScriptedDialogs
{
public:
    explicit CHastyDialogs(const CTemporaryFolder& folder_) : folder(folder_) {}

    DialogId ShowMessage(const SMessage& message, NativeWindowId owner, MessageReceiver receiver) override
    {
        answers.push_back(EMessageAnswer::Yes);
        return CScriptedDialogs::ShowMessage(message, owner, std::move(receiver));
    }

    DialogId ChooseFile(const SFileRequest& request, NativeWindowId owner, FileReceiver receiver) override
    {
        const bool isGivenUp = requests.size() % 3 == 2 || request.defaultExtension == "xml";
        paths.push_back(isGivenUp ? std::string() : folder.GetPath("own.preset"));
        return CScriptedDialogs::ChooseFile(request, owner, std::move(receiver));
    }

private:
    const CTemporaryFolder& folder;
};

/// What MIDI controllers turn, from the first of these on: the modes, so that controls come and go under the
/// hands, and the delay, which is on a knob.
constexpr int boundParameters[] = {1, 2, 4};
constexpr std::uint8_t firstController = 20;

bool IsBound(int parameter)
{
    return std::ranges::find(boundParameters, parameter) != std::end(boundParameters);
}

/// What a host sees, of hands and of MIDI: values of a parameter only between its touch and its release, no
/// touch within another, and nothing held in the end. The touches by parameter.
std::map<int, int> CountTouches(const std::vector<CAutomationPost>& posts)
{
    std::map<int, int> touches;
    std::set<int> held;
    for (const CAutomationPost& post : posts)
    {
        EXPECT_GE(post.parameter, 0);
        switch (post.kind)
        {
        case CAutomationPost::EKind::Touch:
            EXPECT_TRUE(held.insert(post.parameter).second) << "touched twice: " << post.parameter;
            ++touches[post.parameter];
            break;
        case CAutomationPost::EKind::Value:
            EXPECT_TRUE(held.contains(post.parameter)) << "not touched: " << post.parameter;
            EXPECT_GE(post.normalized, 0.0);
            EXPECT_LE(post.normalized, 1.0);
            break;
        case CAutomationPost::EKind::Release:
            EXPECT_EQ(held.erase(post.parameter), 1U) << "released untouched: " << post.parameter;
            break;
        }
    }
    EXPECT_TRUE(held.empty()) << "still held: " << *held.begin();
    return touches;
}

/// The trigger value is on knobs and sliders, as the delay is.
bool IsDragged(int parameter)
{
    return parameter == 4 || parameter == 5;
}

int CountValues(const std::vector<CAutomationPost>& posts, int parameter)
{
    return static_cast<int>(std::ranges::count_if(
        posts, [parameter](const CAutomationPost& post)
        { return post.parameter == parameter && post.kind == CAutomationPost::EKind::Value; }));
}

std::string Tell(const std::vector<CAutomationPost>& posts)
{
    static constexpr const char* names[] = {"touch", "release", "value"};
    std::string told;
    for (const CAutomationPost& post : posts)
    {
        told += std::string(names[static_cast<int>(post.kind)]) + ' ' + std::to_string(post.parameter) + ' ' +
                std::to_string(post.normalized) + "; ";
    }
    return told;
}

std::string SkinPath(const std::string& name)
{
    return GetDataFolder() + "/Skins/" + name;
}

constexpr long blocksPerSecond = 48000 / CRunningAudio::Block;

class AnHourOfGestures : public testing::Test
{
protected:
    void SetUp() override
    {
        instance = plugin.Make();
        UsePlayedPopups(*instance, dialogs);
    }

    void Play(const std::string& skinFile, int count)
    {
        skin = SkinPath(skinFile);
        BindControllers();
        CRunningAudio audio(*instance, {firstController, firstController + 1, firstController + 2});
        {
            CPlayedEditor editor(*instance);
            ASSERT_TRUE(editor.Get().LoadSkin(skin)) << editor.Get().GetSkinMessages();
            ASSERT_GT(InternalsOf(*instance).GetPresets().GetCount(), 0);
            TakePosts(audio);
            for (int i = 0; i < count && !HasFailure(); ++i)
            {
                PlayOne(editor, audio, i);
                if (i % 10 == 9)
                {
                    Disturb(editor, audio);
                    BindControllers(); // a preset brings its own
                }
            }
        }
        audio.Stop();
        EXPECT_GT(audio.GetBlockCount(), 0);
        EXPECT_GE(InternalsOf(*instance).GetLastMIDIMessage().GetNumber(), firstController);
    }

    void BindControllers()
    {
        Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals = InternalsOf(*instance);
        int controller = firstController;
        for (const int parameter : boundParameters)
        {
            Mirel::Audio::Plugin::CMIDICCSetting& setting = internals.GetInputMIDISettings()[parameter];
            setting.SetNumber(controller++);
            setting.SetEnabled(true);
        }
        internals.GetUseDefaultInputMIDI().SetValue(false);
    }

    /// While MIDI posts nothing.
    std::vector<CAutomationPost> TakePosts(CRunningAudio& audio)
    {
        return audio.Between([this] { return instance->GetController().TakePosts(); });
    }

    void PlayOne(CPlayedEditor& editor, CRunningAudio& audio, int index)
    {
        const CRandomHands::SGesture gesture = hands.Play(editor);
        SCOPED_TRACE("gesture " + std::to_string(index) + ": " + gesture.text);
        const std::vector<CAutomationPost> posts = TakePosts(audio);
        std::map<int, int> touched = CountTouches(posts);
        std::erase_if(touched, [](const auto& each) { return IsBound(each.first); });
        if (!touched.empty())
        {
            hands.Remember(gesture.from);
        }
        for (const auto& [parameter, touches] : touched)
        {
            // A button goes up when a held mouse leaves it, and down again when that comes back.
            const int most = IsDragged(parameter) ? gesture.mostTouches : gesture.mostTouches + gesture.moves;
            EXPECT_LE(touches, most) << "parameter " << parameter << ": " << Tell(posts);
            EXPECT_TRUE(IsDragged(parameter) || CountValues(posts, parameter) <= gesture.mostTouches)
                << "parameter " << parameter << ": " << Tell(posts);
            ++touchesOf[parameter];
        }
    }

    /// What happens between the gestures of a user, and in the middle of one.
    void Disturb(CPlayedEditor& editor, CRunningAudio& audio)
    {
        const int what = hands.Pick(5);
        SCOPED_TRACE("disturbance " + std::to_string(what));
        Mirel::Audio::Plugin::IPresets& presets = InternalsOf(*instance).GetPresets();
        std::vector<char> bytes;
        std::string error;
        switch (what)
        {
        case 0:
            presets.GetPreset(hands.Pick(presets.GetCount())).Load();
            break;
        case 1:
            EXPECT_TRUE(instance->SaveChunk(MirelExt::AAXPlugin::StateChunkId, bytes, error)) << error;
            instance->LoadChunk(bytes);
            break;
        case 2:
            ReloadWithinADrag(editor);
            break;
        default:
            EXPECT_TRUE(editor.Get().LoadSkin(skin)) << editor.Get().GetSkinMessages();
            break;
        }
        editor.Get().Wake();
        EXPECT_FALSE(editor.Get().TakePicture().IsEmpty());
        CountTouches(TakePosts(audio));
    }

    void ReloadWithinADrag(CPlayedEditor& editor)
    {
        const CPoint from = hands.PickPlace(editor);
        editor.GetPlatform().MovePointer(from);
        editor.GetPlatform().PressButton(EMouseButton::Left);
        editor.GetPlatform().MovePointer({from.x + 10, from.y - 10});
        EXPECT_TRUE(editor.Get().LoadSkin(skin));
        editor.GetPlatform().MovePointer({from.x, from.y - 20});
        editor.GetPlatform().ReleaseButton(EMouseButton::Left);
        editor.Get().Wake();
        if (editor.GetPopup() != nullptr)
        {
            editor.Type(ENativeKey::Escape);
        }
    }

    /// A wave that begins anew with each tenth of a second, so that all that looks back sees the same.
    static void PlayWave(CHostInstance& instance, long blocks)
    {
        constexpr int period = 4800;
        CChannels inputs(2, CRunningAudio::Block);
        CChannels outputs(2, CRunningAudio::Block);
        for (long block = 0; block < blocks; ++block)
        {
            for (int i = 0; i < CRunningAudio::Block; ++i)
            {
                const long place = (block * CRunningAudio::Block + i) % period;
                inputs[0][static_cast<std::size_t>(i)] = static_cast<float>(place) / period - 0.5F;
                inputs[1][static_cast<std::size_t>(i)] = place < period / 3 ? 0.7F : -0.4F;
            }
            instance.Process(inputs.Get(), outputs.Get(), CRunningAudio::Block);
        }
    }

    /// Each change of Sync clears the traces and begins a second.
    static void Restart(CHostInstance& played)
    {
        double sync = 0.0;
        played.GetParameters().GetParameterValue("P3", &sync);
        for (const double value : {1.0 - sync, sync})
        {
            PlayWave(played, blocksPerSecond);
            played.GetParameters().SetParameterValue("P3", value);
        }
        PlayWave(played, 10 * blocksPerSecond);
    }

    /// Once nothing moves any more: the lamp of the last MIDI message goes out by itself.
    CPicture TakePictureAfresh(CHostInstance& shown)
    {
        constexpr int patience = 50;
        CPlayedEditor editor(shown);
        EXPECT_TRUE(editor.Get().LoadSkin(skin));
        editor.Get().WakeFor(300);
        CPicture before;
        CPicture picture = editor.Get().TakePicture();
        for (int i = 0; i < patience && picture.pixels != before.pixels; ++i)
        {
            editor.Get().WakeFor(100);
            before = std::exchange(picture, editor.Get().TakePicture());
        }
        return picture;
    }

    /// The state in another instance shows what the first shows.
    void CompareWithASecondInstance()
    {
        std::vector<char> bytes;
        std::string error;
        ASSERT_TRUE(instance->SaveChunk(MirelExt::AAXPlugin::StateChunkId, bytes, error)) << error;
        const auto second = plugin.Make();
        UsePlayedPopups(*second, dialogs);
        second->LoadChunk(bytes);
        EXPECT_TRUE(second->IsActiveChunk(bytes));
        Restart(*instance);
        Restart(*second);
        const CPicture first = TakePictureAfresh(*instance);
        const CPicture other = TakePictureAfresh(*second);
        ASSERT_FALSE(first.IsEmpty());
        ASSERT_EQ(first.width, other.width);
        ASSERT_EQ(first.height, other.height);
        int differing = 0;
        for (std::size_t i = 0; i < first.pixels.size(); ++i)
        {
            differing += first.pixels[i] == other.pixels[i] ? 0 : 1;
        }
        EXPECT_EQ(differing, 0) << "pixels";
        WriteBoth(differing, first, other);
    }

    void WriteBoth(int differing, const CPicture& first, const CPicture& other)
    {
        const auto place = FindEnvironmentText("SCOPE_BANK_PICTURES");
        std::string error;
        if (differing != 0 && place)
        {
            WritePicture(first, *place + "/first.png", error);
            WritePicture(other, *place + "/other.png", error);
        }
    }

    CTemporaryFolder folder;
    CHastyDialogs dialogs{folder};
    CInProcessPlugin plugin;
    std::unique_ptr<CHostInstance> instance;
    CRandomHands hands{20260501};
    std::string skin;
    std::map<int, int> touchesOf; ///< Gestures by parameter, but for those that MIDI turns, too.
};

TEST_F(AnHourOfGestures, OnTheFactorySkin)
{
    Play("default.xml", GetGestureCount());
    ASSERT_FALSE(HasFailure());
    // Bypass, sync, the trigger value and its direction have all been in somebody's hands.
    EXPECT_EQ(touchesOf.size(), 4U) << testing::PrintToString(touchesOf);
    CompareWithASecondInstance();
}

TEST_F(AnHourOfGestures, OnTheCompactSkin)
{
    Play("compact.xml", GetGestureCount() / 2);
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ(touchesOf.size(), 1U) << "the marker";
    CompareWithASecondInstance();
}

TEST_F(AnHourOfGestures, OnTheXYSkin)
{
    Play("xy.xml", GetGestureCount() / (isSanitized ? 20 : 2));
    ASSERT_FALSE(HasFailure());
    EXPECT_TRUE(touchesOf.size() == 1U || isSanitized) << "sync";
    CompareWithASecondInstance();
}

TEST_F(AnHourOfGestures, ClosingTheEditorWithinADragReleases)
{
    {
        CPlayedEditor editor(*instance);
        ASSERT_TRUE(editor.Get().LoadSkin(SkinPath("default.xml")));
        editor.GetPlatform().MovePointer({300, 562});
        editor.GetPlatform().PressButton(EMouseButton::Left);
        editor.GetPlatform().MovePointer({300, 540});
        editor.Get().Wake();
    }
    EXPECT_THAT(CountTouches(instance->GetController().TakePosts()),
                testing::ElementsAre(std::pair<const int, int>(4, 1)));
}

} // namespace
