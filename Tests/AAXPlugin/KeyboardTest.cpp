#include "AAXPlugin/CPlayedEditor.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"
#include "Support/Contrast.h"
#include "Support/DataFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace
{

using namespace Host;
using namespace Tests;
using Mirel::GUI::ENativeKey;
using testing::ElementsAreArray;

using Names = std::vector<std::string>;

constexpr double flow = 0.0;
constexpr double loop = 0.5;
constexpr double trigger = 1.0;

/// A user without a mouse.
class KeyboardOnAFactorySkin : public testing::Test
{
protected:
    void SetUp() override
    {
        instance = plugin.Make();
        UsePlayedPopups(*instance, dialogs);
    }

    void Open(const std::string& skin, double viewMode)
    {
        instance->GetParameters().SetParameterValue("P2", viewMode);
        editor.emplace(*instance);
        ASSERT_TRUE(editor->Get().LoadSkin(GetDataFolder() + "/Skins/" + skin))
            << editor->Get().GetSkinMessages();
        editor->GetPlatform().MovePointer({-100, -100});
        editor->Get().WakeFor(120);
        instance->GetController().TakePosts();
    }

    void TearDown() override { editor.reset(); }

    void Tab() { editor->Type(ENativeKey::Tab); }

    void TabBack()
    {
        editor->GetPlatform().SetModifiers(Mirel::GUI::ModifierFlags::shift);
        Tab();
        editor->GetPlatform().SetModifiers(0);
    }

    /// The parameter that a key made a gesture of; empty for none.
    std::string TakeGesture()
    {
        const std::vector<CAutomationPost> posts = instance->GetController().TakePosts();
        if (posts.empty())
        {
            return "";
        }
        EXPECT_EQ(posts.front().kind, CAutomationPost::EKind::Touch);
        EXPECT_EQ(posts.back().kind, CAutomationPost::EKind::Release);
        hasMoved = posts.size() > 2;
        return "P" + std::to_string(posts.front().parameter);
    }

    /// Of what the skin has of the view.
    std::map<std::string, float> ReadView() const
    {
        std::map<std::string, float> values;
        const auto& objects = editor->GetGui().GetSkinWindow()->GetObjectsDictionary();
        for (const char* id : {"view.time_scale", "view.scroll", "view.loop_scroll", "view.amplitude_scale"})
        {
            using Mirel::DataModel::Objects::IConstCaptureParam;
            const auto* object = objects.Find(id);
            const auto* param =
                object == nullptr ? nullptr : Mirel::SkinEngine::FindInterface<IConstCaptureParam>(*object);
            if (param != nullptr)
            {
                values[id] = param->GetValue();
            }
        }
        return values;
    }

    /// What an arrow changes, and the opposite one changes back.
    std::string TryArrows()
    {
        const std::map<std::string, float> before = ReadView();
        std::string changed;
        for (const ENativeKey key : {ENativeKey::Right, ENativeKey::Left})
        {
            editor->Type(key);
            editor->Get().WakeFor(1);
            hasMoved = false;
            changed = TakeGesture();
            for (const auto& [id, value] : ReadView())
            {
                if (value < before.at(id) || value > before.at(id))
                {
                    changed = id;
                    hasMoved = true;
                }
            }
            if (hasMoved)
            {
                editor->Type(key == ENativeKey::Right ? ENativeKey::Left : ENativeKey::Right);
                TakeGesture();
                break;
            }
        }
        return changed;
    }

    /// What the control that has the focus is for, told by what its keys do.
    std::string Try()
    {
        const std::size_t asked = dialogs.requests.size();
        std::vector<char> state;
        std::string error;
        EXPECT_TRUE(instance->SaveChunk(MirelExt::AAXPlugin::StateChunkId, state, error)) << error;
        const std::string preset = InternalsOf(*instance).GetCurrentPresetName();
        editor->Type(ENativeKey::Return);
        if (const std::string now = InternalsOf(*instance).GetCurrentPresetName(); now != preset)
        {
            instance->LoadChunk(state);
            editor->Get().WakeFor(120);
            instance->GetController().TakePosts();
            return "preset " + now;
        }
        if (dialogs.requests.size() > asked)
        {
            EXPECT_TRUE(dialogs.Answer(std::string()));
            return dialogs.requests.back().isSave ? "save" : "load";
        }
        if (const std::string pushed = TakeGesture(); !pushed.empty())
        {
            EXPECT_TRUE(hasMoved) << pushed;
            editor->Type(ENativeKey::Return);
            TakeGesture();
            return pushed;
        }
        if (editor->GetPopup() == nullptr)
        {
            return TryArrows();
        }
        editor->Type(ENativeKey::Escape);
        EXPECT_EQ(editor->GetPopup(), nullptr);
        const std::string stepped = TryArrows();
        return stepped.empty() ? "menu" : "list of " + stepped;
    }

    void ExpectRound(const Names& expected)
    {
        Names forward;
        Names back;
        for (std::size_t i = 0; i <= expected.size(); ++i)
        {
            Tab();
            forward.push_back(Try());
        }
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            back.insert(back.begin(), Try());
            TabBack();
        }
        Names round = expected;
        round.push_back(expected.front());
        EXPECT_THAT(forward, ElementsAreArray(round));
        round.erase(round.begin());
        EXPECT_THAT(back, ElementsAreArray(round));
    }

    CScriptedDialogs dialogs;
    CInProcessPlugin plugin;
    std::unique_ptr<CHostInstance> instance;
    std::optional<CPlayedEditor> editor;
    bool hasMoved = false; ///< The latest gesture had a value.
};

TEST_F(KeyboardOnAFactorySkin, ReachesEveryControlOfTheDefaultSkin)
{
    Open("default.xml", flow);
    ExpectRound({"preset 100 ms late", "menu", "preset Default", "load", "save", "P0", "menu", "list of P1",
                 "list of P2", "P3", "P4", "P5", "P6", "view.time_scale", "view.scroll",
                 "view.amplitude_scale"});
}

TEST_F(KeyboardOnAFactorySkin, ComesToTheSliderOfLoopInLoop)
{
    Open("default.xml", loop);
    ExpectRound({"preset 100 ms late", "menu", "preset Default", "load", "save", "P0", "menu", "list of P1",
                 "list of P2", "P3", "P4", "P5", "P6", "view.time_scale", "view.loop_scroll",
                 "view.amplitude_scale"});
}

TEST_F(KeyboardOnAFactorySkin, ComesToTheMarkersInTrigger)
{
    Open("default.xml", trigger);
    ExpectRound({"preset 100 ms late", "menu", "preset Default", "load", "save", "P0", "menu", "P5", "P5",
                 "list of P1", "list of P2", "P3", "P4", "P5", "P6", "view.time_scale", "view.scroll",
                 "view.amplitude_scale"});
}

TEST_F(KeyboardOnAFactorySkin, ReachesEveryControlOfTheCompactSkin)
{
    Open("compact.xml", flow);
    ExpectRound({"list of P2", "list of P1", "menu"});
    editor.reset();
    Open("compact.xml", trigger);
    ExpectRound({"list of P2", "list of P1", "menu", "P5"});
}

TEST_F(KeyboardOnAFactorySkin, ReachesEveryControlOfTheXYSkin)
{
    Open("xy.xml", flow);
    ExpectRound(
        {"list of P1", "list of P2", "P3", "menu", "view.time_scale", "list of view.amplitude_scale"});
}

TEST_F(KeyboardOnAFactorySkin, ChoosesFromAListThatSpaceOpens)
{
    Open("compact.xml", flow);
    Tab();
    editor->Type(ENativeKey::Character, " ");
    ASSERT_NE(editor->GetPopup(), nullptr);
    EXPECT_EQ(TakeGesture(), "");
    editor->Type(ENativeKey::Down); // from Flow, the present one, to Loop
    editor->Type(ENativeKey::Return);
    EXPECT_EQ(editor->GetPopup(), nullptr);
    EXPECT_EQ(TakeGesture(), "P2");
    double value = -1.0;
    instance->GetParameters().GetParameterValue("P2", &value);
    EXPECT_EQ(value, loop);
}

TEST_F(KeyboardOnAFactorySkin, TypesAValue)
{
    Open("default.xml", flow);
    constexpr int stopsToDelay = 11;
    for (int i = 0; i < stopsToDelay; ++i)
    {
        Tab();
    }
    editor->Type(ENativeKey::Character, "e");
    ASSERT_NE(editor->GetPopup(), nullptr);
    for (const char digit : {'7', '5'})
    {
        editor->Type(ENativeKey::Character, std::string(1, digit));
    }
    editor->Type(ENativeKey::Return);
    EXPECT_EQ(editor->GetPopup(), nullptr);
    EXPECT_EQ(TakeGesture(), "P4");
    double value = -1.0;
    instance->GetParameters().GetParameterValue("P4", &value);
    EXPECT_NEAR(value, 75.0 / 300.0, 1e-6);
    editor->Type(ENativeKey::Character, "d");
    EXPECT_EQ(TakeGesture(), "P4") << "the knob has the keys again";
    instance->GetParameters().GetParameterValue("P4", &value);
    EXPECT_EQ(value, 0.0);
}

/// How many pixels tell by their contrast where the focus is: none are different outside of the control.
void ExpectFocusIsSeen(const CPicture& without, const CPicture& with, const std::string& what)
{
    constexpr double leastContrast = 3.0;
    constexpr int leastPixels = 24;
    constexpr int largestWidth = 144;
    constexpr int largestHeight = 44;
    int seen = 0;
    int left = with.width;
    int right = -1;
    int top = with.height;
    int bottom = -1;
    ASSERT_EQ(without.pixels.size(), with.pixels.size());
    for (int y = 0; y < with.height; ++y)
    {
        for (int x = 0; x < with.width; ++x)
        {
            const auto place = static_cast<std::size_t>(y * with.width + x);
            if (without.pixels[place] != with.pixels[place])
            {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
                seen += GetContrast(without.pixels[place], with.pixels[place]) >= leastContrast ? 1 : 0;
            }
        }
    }
    EXPECT_GE(seen, leastPixels) << what;
    EXPECT_LE(right - left, largestWidth) << what;
    EXPECT_LE(bottom - top, largestHeight) << what;
}

TEST_F(KeyboardOnAFactorySkin, ShowsWhereTheFocusIs)
{
    for (const auto& [skin, stops, on] :
         {std::tuple("default.xml", 18, 0.0), std::tuple("default.xml", 18, 1.0),
          std::tuple("compact.xml", 4, 0.0), std::tuple("xy.xml", 6, 0.0), std::tuple("xy.xml", 6, 1.0)})
    {
        for (const char* switched : {"MasterBypassID", "P3", "P6"})
        {
            instance->GetParameters().SetParameterValue(switched, on);
        }
        Open(skin, trigger);
        const CPicture without = editor->Get().TakePicture();
        for (int i = 0; i < stops; ++i)
        {
            Tab();
            const CPicture with = editor->Get().TakePicture();
            const std::string what =
                std::string(skin).append(on > 0.0 ? " on " : " off ").append(std::to_string(i));
            ExpectFocusIsSeen(without, with, what);
            // NOLINTNEXTLINE(concurrency-mt-unsafe)
            if (const char* place = std::getenv("SCOPE_BANK_PICTURES"); place != nullptr)
            {
                std::string error;
                WritePicture(with, std::string(place).append("/").append(what).append(".png"), error);
            }
        }
        editor.reset();
    }
}

} // namespace
