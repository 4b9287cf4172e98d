#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"

#include "CTestInstance.h"
#include "Mirel/Audio/Plugin/CPluginSkinModelFactory.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Support/CScriptedDialogs.h"
#include "Support/EventCounter.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace Mirel::Audio::Plugin
{
namespace
{

using Core::CSize;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string noSkin = "Could not load skin. Please choose a valid skin file.";
const std::string loadingGlobal = "Loading global skin.";
const std::string noGlobal = "Could not load global skin. Loading factory default skin instead.";
const std::string noFactory = "Could not load factory default skin. Please reinstall the software.";

/// Opens a menu for the test to look at.
class CMenuWatch : public GUI::IMenuPresenter
{
public:
    explicit CMenuWatch(const GUI::CMenu*& shown_) : shown(shown_) {}
    bool Open(const GUI::CMenu& menu, const GUI::INativeWindow&, GUI::CPoint, std::function<void()>) override
    {
        shown = &menu;
        return true;
    }
    void Close() override { shown = nullptr; }

private:
    const GUI::CMenu*& shown;
};

class CPopupsOfTest : public IEditorPopups
{
public:
    CPopupsOfTest(GUI::IDialogs& dialogs_, const GUI::CMenu*& shown) : dialogs(dialogs_), menus(shown) {}
    GUI::IDialogs* GetDialogs() override { return &dialogs; }
    GUI::IMenuPresenter* GetMenus() override { return &menus; }
    GUI::ITooltipPresenter* GetTooltips() override { return nullptr; }
    DataModel::GUIWidgets::IFineEditOpener* GetFineEdit() override { return nullptr; }
    void CloseAll() override {}

private:
    GUI::IDialogs& dialogs;
    CMenuWatch menus;
};

class CAudioPluginSkinGUITest : public testing::Test
{
protected:
    CAudioPluginSkinGUITest()
    {
        options.productName = "Tarnwell's Scope Bank";
        options.productVersion = "1.7";
        options.makerName = "Tarnwell";
        options.legalLine = "All rights kept.";
        options.website = "https://maker.example/scope";
        options.updatesPage = "https://maker.example/updates?from=editor";
        options.skinsPage = "https://maker.example/skins";
        options.makePopups = [this](GUI::CWindow&) { return std::make_unique<CPopupsOfTest>(dialogs, menu); };
        instance.internals.GetModel().SetFactory(&modelFactory);
        instance.internals.GetEditor().SetFactory(
            [this]
            {
                auto made = std::make_unique<CAudioPluginSkinGUI>(instance.internals, options);
                editor = made.get();
                return made;
            });
    }

    std::string WriteSkin(const std::string& name, int width, const std::string& body = {}) const
    {
        places.WriteData("Skins/" + name, "<SKIN name=\"" + name +
                                              "\" author=\"Ann\" comment=\"Calm\" width=\"" +
                                              std::to_string(width) + "\" height=\"30\">" + body + "</SKIN>");
        return places.DataPath("Skins/" + name);
    }

    std::string WriteBadSkin(const std::string& name) const
    {
        places.WriteData("Skins/" + name, "<SKIN><COLUMN></SKIN>");
        return places.DataPath("Skins/" + name);
    }

    bool Open(int scale = 1) { return instance.internals.GetEditor().Open({0, scale}); }
    void Close() { instance.internals.GetEditor().Close(); }

    void UsePresetSkin(const std::string& path)
    {
        instance.LoadKeys("<GUI><useDefault>0</useDefault><skinFile>" + path + "</skinFile></GUI>");
    }

    void Pump()
    {
        for (int i = 0; i < 3; ++i)
        {
            editor->Pump();
        }
    }

    void PumpFor(int milliseconds)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        while (std::chrono::steady_clock::now() < end)
        {
            editor->Pump();
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const GUI::SMessage& message : dialogs.messages)
        {
            texts.push_back(message.text);
        }
        return texts;
    }

    const GUI::SMenuItem* FindItem(const std::string& text) const
    {
        for (const GUI::SMenuItem& item : menu->GetItems())
        {
            if (item.text == text)
            {
                return &item;
            }
        }
        return nullptr;
    }

    /// Triggers an action as a button of the skin does.
    void Run(const char* action)
    {
        using DataModel::Objects::IConstAction;
        const auto* object = editor->GetSkinWindow()->GetObjectsDictionary().Find(action);
        ASSERT_NE(object, nullptr) << action;
        SkinEngine::FindInterface<IConstAction>(*object)->Execute();
        Pump();
    }

    /// A skin that names all actions.
    std::string WriteActionsSkin() const
    {
        std::string body;
        for (const char* name : {"OpenMenu", "OpenPresetMenu", "LoadPreviousPreset", "LoadNextPreset",
                                 "DisplayAbout", "OpenManual", "OpenWebsite", "Undo", "Redo", "LoadPreset",
                                 "SavePreset", "ResetPresetMIDISettings"})
        {
            body +=
                std::string("<INVISIBLE_ACTION_BUTTON action_id=\"") + name + "\" width=\"5\" height=\"5\"/>";
        }
        return WriteSkin("default.xml", 60, body);
    }

    Tests::CTestPlaces places;
    Tests::CScriptedDialogs dialogs;
    const GUI::CMenu* menu = nullptr;
    CPluginSkinModelFactory modelFactory;
    SSkinEditorOptions options;
    CAudioPluginSkinGUI* editor = nullptr;
    Tests::CTestInstance instance{places};
};

TEST_F(CAudioPluginSkinGUITest, OpensWithTheGlobalSkin)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_TRUE(editor->GetSkinWindow()->IsLoaded()) << editor->GetSkinMessages();
    EXPECT_EQ(editor->GetSize(), (CSize{90, 30}));
    EXPECT_GE(editor->GetDescriptor(), 0);
    Close();
    EXPECT_EQ(instance.internals.GetEditor().GetSize(), CSize());
}

TEST_F(CAudioPluginSkinGUITest, DoesNothingWhileClosed)
{
    CAudioPluginSkinGUI closed(instance.internals, options);
    closed.Show();
    closed.Pump();
    closed.SetSize({10, 10});
    closed.Close();
    std::uint32_t pixel = 0;
    EXPECT_FALSE(closed.CopyPicture(&pixel, {1, 1}, 4));
    EXPECT_FALSE(closed.LoadSkin("x.xml"));
    EXPECT_EQ(closed.GetDescriptor(), -1);
    EXPECT_EQ(closed.GetSize(), CSize());
    EXPECT_EQ(closed.GetSkinMessages(), "");
}

TEST_F(CAudioPluginSkinGUITest, ThePresetsOwnSkinComesFirst)
{
    WriteSkin("default.xml", 90);
    UsePresetSkin(WriteSkin("own.xml", 70));
    ASSERT_TRUE(Open());
    EXPECT_EQ(editor->GetSize().width, 70);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(CAudioPluginSkinGUITest, APresetThatUsesTheGlobalSkinHasNoOwn)
{
    WriteSkin("default.xml", 90);
    instance.LoadKeys("<GUI><useDefault>1</useDefault><skinFile>" + WriteSkin("own.xml", 70) +
                      "</skinFile></GUI>");
    ASSERT_TRUE(Open());
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, AsksForASkinWhereTheGlobalOneFails)
{
    instance.internals.GetDefaultSettings().SetSkinFile(WriteBadSkin("global.xml"));
    dialogs.answers = {GUI::EMessageAnswer::Yes};
    dialogs.paths = {WriteSkin("other.xml", 55)};
    ASSERT_TRUE(Open());
    EXPECT_EQ(editor->GetSize().width, 55);
    EXPECT_THAT(Texts(), ElementsAre(noSkin));
    EXPECT_EQ(dialogs.messages[0].title, "Error");
    ASSERT_EQ(dialogs.requests.size(), 1U);
    EXPECT_EQ(dialogs.requests[0].title, "Choose global skin");
    EXPECT_EQ(dialogs.requests[0].defaultExtension, "xml");
    ASSERT_EQ(dialogs.requests[0].filters.size(), 1U);
    EXPECT_EQ(dialogs.requests[0].filters[0].name, "Skin Files (*.xml)");
    EXPECT_EQ(instance.internals.GetDefaultSettings().GetSkinFile(), places.DataPath("Skins/other.xml"));
}

TEST_F(CAudioPluginSkinGUITest, AsksForThePresetsSkinWhereThatFails)
{
    UsePresetSkin(WriteBadSkin("own.xml"));
    dialogs.answers = {GUI::EMessageAnswer::Yes};
    dialogs.paths = {WriteSkin("other.xml", 55)};
    ASSERT_TRUE(Open());
    EXPECT_EQ(dialogs.requests[0].title, "Choose skin for current preset");
    EXPECT_EQ(editor->GetSize().width, 55);
    EXPECT_NE(instance.SaveText().find("other.xml"), std::string::npos);
}

TEST_F(CAudioPluginSkinGUITest, FallsBackFromThePresetsSkinToTheGlobalOne)
{
    WriteSkin("default.xml", 90);
    UsePresetSkin(WriteBadSkin("own.xml"));
    dialogs.answers = {GUI::EMessageAnswer::Yes, GUI::EMessageAnswer::Yes};
    dialogs.paths = {""};
    ASSERT_TRUE(Open());
    EXPECT_THAT(Texts(), ElementsAre(noSkin, loadingGlobal));
    EXPECT_EQ(dialogs.messages[1].title, "Information");
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, FallsBackToTheFactorySkinInTheEnd)
{
    WriteSkin("default.xml", 90);
    instance.internals.GetDefaultSettings().SetSkinFile(WriteBadSkin("global.xml"));
    UsePresetSkin(WriteBadSkin("own.xml"));
    dialogs.answers.assign(4, GUI::EMessageAnswer::Yes);
    dialogs.paths = {WriteBadSkin("chosen.xml")};
    ASSERT_TRUE(Open());
    EXPECT_THAT(Texts(), ElementsAre(noSkin, noSkin, loadingGlobal, noGlobal));
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, SaysSoWhereNoSkinLoadsAtAll)
{
    UsePresetSkin(WriteBadSkin("own.xml"));
    dialogs.answers.assign(4, GUI::EMessageAnswer::Yes);
    dialogs.paths = {""};
    ASSERT_TRUE(Open()) << "an editor without a skin is open all the same";
    EXPECT_THAT(Texts(), ElementsAre(noSkin, loadingGlobal, noGlobal, noFactory));
    EXPECT_FALSE(editor->GetSkinWindow()->IsLoaded());
}

TEST_F(CAudioPluginSkinGUITest, TheGlobalSkinThatFailedIsNotTriedTwice)
{
    instance.internals.GetDefaultSettings().SetSkinFile(WriteBadSkin("global.xml"));
    WriteSkin("default.xml", 90);
    dialogs.answers = {GUI::EMessageAnswer::Yes};
    dialogs.paths = {""};
    ASSERT_TRUE(Open());
    EXPECT_THAT(Texts(), ElementsAre(noSkin));
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, WhereNobodyCanBeAskedItFallsBackAtOnce)
{
    options.makePopups = {};
    WriteSkin("default.xml", 90);
    UsePresetSkin(WriteBadSkin("own.xml"));
    ASSERT_TRUE(Open());
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, DoesNotWaitForTheUser)
{
    WriteSkin("default.xml", 90);
    UsePresetSkin(WriteBadSkin("own.xml"));
    ASSERT_TRUE(Open());
    EXPECT_THAT(Texts(), ElementsAre(noSkin));
    ASSERT_TRUE(editor->LoadSkin(WriteSkin("tool.xml", 44).c_str()));
    EXPECT_EQ(dialogs.cancelled.size(), 1U);
    dialogs.Answer(GUI::EMessageAnswer::Yes);
    EXPECT_TRUE(dialogs.requests.empty()) << "the question is of no interest any more";
    EXPECT_EQ(editor->GetSize().width, 44);
}

TEST_F(CAudioPluginSkinGUITest, LoadsAnotherSkinAndTellsWhatItHadToSay)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    Tests::CEventCounter resized(instance.internals.GetEditor().GetResizedEvent());
    EXPECT_TRUE(editor->LoadSkin(WriteSkin("wide.xml", 200).c_str()));
    EXPECT_EQ(editor->GetSize(), (CSize{200, 30}));
    EXPECT_EQ(resized.Take(), 1);
    places.WriteData("Skins/bad.xml", "<SKIN>\n<CURVE_GRAPH curve_id=\"no.such\"/>\n<TABLE_ROW/>\n</SKIN>");
    EXPECT_FALSE(editor->LoadSkin(places.DataPath("Skins/bad.xml").c_str()));
    EXPECT_NE(editor->GetSkinMessages().find("error\tbad.xml:3\tCannot TABLE_ROW"), std::string::npos)
        << editor->GetSkinMessages();
    EXPECT_NE(editor->GetSkinMessages().find("no.such"), std::string::npos);
}

TEST_F(CAudioPluginSkinGUITest, TheHostsSizeLaysTheSkinOut)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open(2));
    EXPECT_EQ(editor->GetSize(), (CSize{180, 60}));
    Tests::CEventCounter resized(instance.internals.GetEditor().GetResizedEvent());
    editor->SetSize({400, 300});
    EXPECT_EQ(editor->GetSize(), (CSize{400, 300}));
    EXPECT_EQ(editor->GetSkinWindow()->GetSize(), (CSize{200, 150}));
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(CAudioPluginSkinGUITest, CopiesItsPicture)
{
    places.WriteData("Skins/default.xml", "<SKIN background_color=\"#204060\" width=\"8\" height=\"4\"/>");
    ASSERT_TRUE(Open());
    std::vector<std::uint32_t> pixels(std::size_t{10} * 5, 0x12345678U);
    ASSERT_TRUE(editor->CopyPicture(pixels.data(), {9, 5}, 40));
    EXPECT_EQ(pixels[0], 0xFF204060U);
    EXPECT_EQ(pixels[3 * 10 + 7], 0xFF204060U);
    EXPECT_EQ(pixels[8], 0xFF000000U) << "beside the window";
    EXPECT_EQ(pixels[9], 0x12345678U) << "beside the picture";
}

TEST_F(CAudioPluginSkinGUITest, ItsStateHasAPathOnlyForASkinOfThePreset)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    EXPECT_NE(instance.SaveText().find("<GUI><useDefault>1</useDefault></GUI>"), std::string::npos)
        << instance.SaveText();
    UsePresetSkin(WriteSkin("own.xml", 70));
    EXPECT_NE(instance.SaveText().find("<skinFile>"), std::string::npos);
    EXPECT_NE(instance.SaveText().find("<useDefault>0</useDefault>"), std::string::npos);
    Close();
    EXPECT_NE(instance.SaveText().find("<useDefault>0</useDefault>"), std::string::npos)
        << "kept while closed";
}

TEST_F(CAudioPluginSkinGUITest, AStateWithAnotherSkinChangesTheSkin)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    UsePresetSkin(WriteSkin("own.xml", 70));
    Pump();
    EXPECT_EQ(editor->GetSize().width, 70);
    instance.LoadKeys("");
    Pump();
    EXPECT_EQ(editor->GetSize().width, 90) << "a state without the key resets";
}

TEST_F(CAudioPluginSkinGUITest, AStateFromAnotherThreadChangesTheSkinOnItsOwn)
{
    WriteSkin("default.xml", 90);
    const std::string own = WriteSkin("own.xml", 70);
    ASSERT_TRUE(Open());
    std::thread([&] { UsePresetSkin(own); }).join();
    EXPECT_EQ(editor->GetSize().width, 90);
    Pump();
    EXPECT_EQ(editor->GetSize().width, 70);
}

TEST_F(CAudioPluginSkinGUITest, PublishesItsActions)
{
    WriteActionsSkin();
    dialogs.answers.assign(4, GUI::EMessageAnswer::Yes);
    ASSERT_TRUE(Open());
    ASSERT_TRUE(editor->GetSkinWindow()->IsLoaded()) << editor->GetSkinMessages();
    Run("OpenMenu");
    EXPECT_NE(menu, nullptr);
    Run("OpenWebsite");
    Run("OpenManual");
    EXPECT_THAT(dialogs.pages, ElementsAre("https://maker.example/scope?plugin=Tarnwell%27s%20Scope%20Bank",
                                           places.DataPath("manual.pdf")));
    Run("Undo");
    Run("Redo");
    Run("DisplayAbout");
    EXPECT_THAT(Texts(),
                ElementsAre("Tarnwell's Scope Bank (v1.7)\nby Tarnwell\nSkin: default.xml\nSkin design: "
                            "Ann\nSkin comment: Calm\nSkinning engine version: 1.8\nAll rights kept."));
    EXPECT_EQ(dialogs.messages[0].title, "About Tarnwell's Scope Bank");
}

TEST_F(CAudioPluginSkinGUITest, ActionsRunOnceTheButtonIsDone)
{
    WriteActionsSkin();
    ASSERT_TRUE(Open());
    const auto* object = editor->GetSkinWindow()->GetObjectsDictionary().Find("OpenWebsite");
    ASSERT_NE(object, nullptr);
    SkinEngine::FindInterface<DataModel::Objects::IConstAction>(*object)->Execute();
    EXPECT_THAT(dialogs.pages, IsEmpty());
    Pump();
    EXPECT_EQ(dialogs.pages.size(), 1U);
}

TEST_F(CAudioPluginSkinGUITest, AProductWithoutANameIsThisPlugIn)
{
    options = {};
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    EXPECT_EQ(editor->GetAboutText(), "This Plug-in\nSkin: default.xml\nSkin design: Ann\nSkin comment: "
                                      "Calm\nSkinning engine version: 1.8");
}

TEST_F(CAudioPluginSkinGUITest, TheMenuHasItsEntries)
{
    places.WriteData("Skins/default.xml", "<SKIN/>");
    ASSERT_TRUE(Open());
    GUI::CMenu filled;
    editor->FillMenu(filled);
    std::vector<std::string> texts;
    for (const GUI::SMenuItem& item : filled.GetItems())
    {
        if (!item.isSeparator)
        {
            texts.push_back(item.text);
        }
    }
    EXPECT_THAT(texts, ElementsAre("Undo", "Redo", "Load Preset...", "Save Preset...", "Factory Presets",
                                   "Current Preset Settings", "Set Preset Skin...", "Use Global Skin",
                                   "Get More Skins", "Preset Settings...", "Global Settings...",
                                   "User Manual", "Check for Updates", "Legal Information", "About"));
}

TEST_F(CAudioPluginSkinGUITest, TheMenuLoadsFactoryPresets)
{
    places.WriteData("Presets/factory.presets",
                     "<Presets><PresetCount>2</PresetCount><Preset0><progName>First</progName></Preset0>"
                     "<Preset1><progName>Second</progName></Preset1></Presets>");
    Tests::CTestInstance other(places);
    CAudioPluginSkinGUI own(other.internals, options);
    ASSERT_TRUE(own.Open({0, 1}));
    GUI::CMenu filled;
    own.FillMenu(filled);
    const GUI::SMenuItem* sub = nullptr;
    for (const GUI::SMenuItem& item : filled.GetItems())
    {
        sub = item.text == "Factory Presets" ? &item : sub;
    }
    ASSERT_NE(sub, nullptr);
    ASSERT_EQ(sub->subMenu->GetItems().size(), 2U);
    EXPECT_EQ(sub->subMenu->GetItems()[1].text, "Second");
    sub->subMenu->GetItems()[1].command->Execute();
    own.Pump();
    EXPECT_EQ(other.internals.GetCurrentPresetName(), "Second");
}

/// An instance with three factory presets.
class CFactoryPresetsTest : public CAudioPluginSkinGUITest
{
protected:
    CFactoryPresetsTest()
    {
        WriteActionsSkin();
        listed.internals.GetEditor().SetFactory(
            [this]
            {
                auto made = std::make_unique<CAudioPluginSkinGUI>(listed.internals, options);
                editor = made.get();
                return made;
            });
        listed.internals.GetEditor().Open({0, 1});
    }

    std::string NameAfter(const char* action)
    {
        Run(action);
        return listed.internals.GetCurrentPresetName();
    }

    /// The texts of the open menu, a checked one in brackets.
    std::vector<std::string> Items() const
    {
        std::vector<std::string> texts;
        for (const GUI::SMenuItem& item : menu->GetItems())
        {
            texts.push_back(item.isChecked ? "[" + item.text + "]" : item.text);
        }
        return texts;
    }

    Tests::CTestInstance listed{WithPresets()};

private:
    const Tests::CTestPlaces& WithPresets() const
    {
        places.WriteData("Presets/factory.presets",
                         "<Presets><PresetCount>3</PresetCount><Preset0><progName>First</progName></Preset0>"
                         "<Preset1><progName>Second</progName></Preset1>"
                         "<Preset2><progName>Third</progName></Preset2></Presets>");
        return places;
    }
};

TEST_F(CFactoryPresetsTest, TheMenuOfPresetsChecksThePresentOne)
{
    Run("OpenPresetMenu");
    ASSERT_NE(menu, nullptr);
    EXPECT_THAT(Items(), ElementsAre("First", "Second", "Third")) << "\"User\" is none of them";
    menu->GetItems()[1].command->Execute();
    Pump();
    EXPECT_EQ(listed.internals.GetCurrentPresetName(), "Second");
    Run("OpenPresetMenu");
    EXPECT_THAT(Items(), ElementsAre("First", "[Second]", "Third"));
    Run("OpenMenu");
    const GUI::SMenuItem* sub = FindItem("Factory Presets");
    ASSERT_NE(sub, nullptr);
    EXPECT_TRUE(sub->subMenu->GetItems()[1].isChecked);
}

TEST_F(CFactoryPresetsTest, NextAndPreviousGoRoundTheList)
{
    EXPECT_EQ(NameAfter("LoadNextPreset"), "First") << "from a state that is none of them";
    EXPECT_EQ(NameAfter("LoadNextPreset"), "Second");
    EXPECT_EQ(NameAfter("LoadNextPreset"), "Third");
    EXPECT_EQ(NameAfter("LoadNextPreset"), "First");
    EXPECT_EQ(NameAfter("LoadPreviousPreset"), "Third");
    EXPECT_EQ(NameAfter("LoadPreviousPreset"), "Second");
    listed.LoadKeys("<progName>Mine</progName>");
    EXPECT_EQ(NameAfter("LoadPreviousPreset"), "Third");
}

TEST_F(CAudioPluginSkinGUITest, WithoutFactoryPresetsThereIsNoneToStepTo)
{
    WriteActionsSkin();
    ASSERT_TRUE(Open());
    Run("LoadNextPreset");
    Run("LoadPreviousPreset");
    EXPECT_EQ(instance.internals.GetCurrentPresetName(), "User");
}

TEST_F(CAudioPluginSkinGUITest, TheSkinSeesTheNameOfThePresentState)
{
    WriteSkin("default.xml", 90, "<TEXT_FIELD string_id=\"preset.name\"/>");
    ASSERT_TRUE(Open());
    const auto shown = [this]
    {
        PumpFor(150);
        const auto* object = editor->GetSkinWindow()->GetObjectsDictionary().Find("preset.name");
        return std::string(
            SkinEngine::FindInterface<DataModel::Objects::IConstCaptureString>(*object)->GetValue());
    };
    EXPECT_EQ(shown(), "User");
    std::thread([this] { instance.LoadKeys("<progName>Mine</progName>"); }).join();
    EXPECT_EQ(shown(), "Mine");
    const std::string path = places.folder.GetPath("saved.preset");
    EXPECT_TRUE(SavePreset(instance.internals, path.c_str()));
    instance.LoadKeys("");
    EXPECT_EQ(shown(), "Default");
    EXPECT_TRUE(LoadPreset(path.c_str(), instance.internals));
    EXPECT_EQ(shown(), "Mine");
}

TEST_F(CAudioPluginSkinGUITest, ARightClickOnAnInputIsTheHosts)
{
    WriteSkin("default.xml", 90,
              "<PARAM id=\"own\"/><ROW>"
              "<INVISIBLE_PARAM_BUTTON param_id=\"dsp.input2\" width=\"30\" height=\"30\"/>"
              "<INVISIBLE_PARAM_BUTTON param_id=\"own\" width=\"30\" height=\"30\"/>"
              "<INVISIBLE_PARAM_BUTTON param_id=\"midi.input2.cc\" width=\"30\" height=\"30\"/></ROW>");
    std::vector<int> clicked;
    ASSERT_TRUE(
        instance.internals.GetEditor().Open({0, 1, [&clicked](int input) { clicked.push_back(input); }}));
    editor->Show();
    auto* platform = dynamic_cast<GUI::COffscreenPlatform*>(editor->GetPlatform());
    ASSERT_NE(platform, nullptr);
    const auto click = [platform](int x)
    {
        platform->MovePointer({x, 15});
        platform->PressButton(GUI::EMouseButton::Right);
        platform->ReleaseButton(GUI::EMouseButton::Right);
    };
    click(15);
    EXPECT_THAT(clicked, IsEmpty()) << "not from within the widget's handler";
    Pump();
    EXPECT_THAT(clicked, ElementsAre(2));
    click(45);
    click(75);
    Pump();
    EXPECT_THAT(clicked, ElementsAre(2)) << "the host knows the inputs alone";
}

TEST_F(CAudioPluginSkinGUITest, ARightClickInAPlaceWithoutAHostIsNobodys)
{
    WriteSkin("default.xml", 90,
              "<INVISIBLE_PARAM_BUTTON param_id=\"dsp.input2\" width=\"30\" height=\"30\"/>");
    ASSERT_TRUE(Open());
    editor->Show();
    auto* platform = dynamic_cast<GUI::COffscreenPlatform*>(editor->GetPlatform());
    ASSERT_NE(platform, nullptr);
    const float before = instance.GetInput(2);
    platform->MovePointer({15, 15});
    platform->PressButton(GUI::EMouseButton::Right);
    platform->ReleaseButton(GUI::EMouseButton::Right);
    Pump();
    EXPECT_EQ(instance.GetInput(2), before);
}

TEST_F(CAudioPluginSkinGUITest, SettingsOfThePresetAreSwitchedInTheMenu)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    GUI::CMenu filled;
    menu = &filled;
    editor->FillMenu(filled);
    const GUI::SMenuItem* settings = FindItem("Current Preset Settings");
    ASSERT_NE(settings, nullptr);
    const GUI::SMenuItem& midi = settings->subMenu->GetItems().front();
    EXPECT_TRUE(midi.isChecked);
    midi.command->Execute();
    Pump();
    EXPECT_FALSE(instance.internals.GetUseDefaultInputMIDI().GetValue());
}

TEST_F(CAudioPluginSkinGUITest, PagesCarryTheNameOfThePlugIn)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    GUI::CMenu filled;
    menu = &filled;
    editor->FillMenu(filled);
    FindItem("Check for Updates")->command->Execute();
    FindItem("Get More Skins")->command->Execute();
    FindItem("Legal Information")->command->Execute();
    Pump();
    EXPECT_THAT(dialogs.pages,
                ElementsAre("https://maker.example/updates?from=editor&plugin=Tarnwell%27s%20Scope%20Bank",
                            "https://maker.example/skins?plugin=Tarnwell%27s%20Scope%20Bank",
                            places.DataPath("Legal")));
}

TEST_F(CAudioPluginSkinGUITest, SetsAndForgetsTheSkinOfThePreset)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    dialogs.paths = {WriteSkin("own.xml", 70)};
    GUI::CMenu filled;
    menu = &filled;
    editor->FillMenu(filled);
    EXPECT_FALSE(FindItem("Use Global Skin")->isEnabled);
    FindItem("Set Preset Skin...")->command->Execute();
    Pump();
    EXPECT_EQ(editor->GetSize().width, 70);
    GUI::CMenu again;
    menu = &again;
    editor->FillMenu(again);
    EXPECT_TRUE(FindItem("Use Global Skin")->isEnabled);
    FindItem("Use Global Skin")->command->Execute();
    Pump();
    EXPECT_EQ(editor->GetSize().width, 90);
}

TEST_F(CAudioPluginSkinGUITest, AChosenSkinThatFailsLeavesTheOneThatApplies)
{
    WriteSkin("default.xml", 90);
    ASSERT_TRUE(Open());
    dialogs.paths = {WriteBadSkin("bad.xml")};
    dialogs.answers = {GUI::EMessageAnswer::Yes};
    GUI::CMenu filled;
    menu = &filled;
    editor->FillMenu(filled);
    FindItem("Set Preset Skin...")->command->Execute();
    Pump();
    EXPECT_THAT(Texts(), ElementsAre(noSkin));
    EXPECT_EQ(editor->GetSize().width, 90);
    EXPECT_TRUE(editor->GetSkinWindow()->IsLoaded());
}

TEST_F(CAudioPluginSkinGUITest, SavesAndLoadsPresets)
{
    WriteActionsSkin();
    ASSERT_TRUE(Open());
    const std::string path = places.folder.GetPath("mine.preset");
    dialogs.paths = {path, path};
    instance.SetInput(1, 0.5F);
    Run("SavePreset");
    EXPECT_EQ(dialogs.requests[0].title, "Save Preset As");
    EXPECT_TRUE(dialogs.requests[0].isSave);
    EXPECT_EQ(dialogs.requests[0].defaultExtension, "preset");
    EXPECT_EQ(dialogs.requests[0].filters[0].name, "Presets Files (*.preset)");
    const float saved = instance.GetInput(1);
    instance.SetInput(1, 0.0F);
    Run("LoadPreset");
    EXPECT_EQ(dialogs.requests[1].title, "Load Preset");
    EXPECT_EQ(instance.GetInput(1), saved);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(CAudioPluginSkinGUITest, TellsWhichPresetsItCannotUse)
{
    WriteActionsSkin();
    ASSERT_TRUE(Open());
    dialogs.answers.assign(2, GUI::EMessageAnswer::Yes);
    dialogs.paths = {places.folder.GetPath("none/mine.preset"), places.folder.GetPath("none.preset")};
    Run("SavePreset");
    Run("LoadPreset");
    EXPECT_THAT(Texts(), ElementsAre("Could not save preset file.",
                                     "Could not load preset file. Invalid preset file."));
    EXPECT_EQ(dialogs.messages[0].title, "Save Preset Error");
    EXPECT_EQ(dialogs.messages[1].title, "Load Preset Error");
}

TEST_F(CAudioPluginSkinGUITest, ShowsTheObjectsOfTheInstanceAndOfItsModel)
{
    places.WriteData(
        "Model/model.model",
        "<MODEL><PARAM id=\"zoom\" min=\"0\" max=\"1\" default=\"0.25\" persistent=\"true\"/></MODEL>");
    WriteSkin("default.xml", 90, "<PARAM_TEXT param_id=\"dsp.input1\"/><PARAM_TEXT param_id=\"zoom\"/>");
    instance.internals.Init(instance.internals.GetInputValues(), instance.internals.GetOutputValues());
    ASSERT_TRUE(Open());
    const auto& objects = editor->GetSkinWindow()->GetObjectsDictionary();
    EXPECT_NE(objects.Find("dsp.input1"), nullptr) << editor->GetSkinMessages();
    EXPECT_EQ(objects.Find("dsp.input2"), nullptr) << "nobody wants it";
    EXPECT_NE(objects.Find("zoom"), nullptr);
    Close();
}

TEST_F(CAudioPluginSkinGUITest, TheStateOfTheModelIsSavedAndLoadedOnOtherThreadsMeanwhile)
{
    places.WriteData(
        "Model/model.model",
        "<MODEL><PARAM id=\"zoom\" min=\"0\" max=\"1\" default=\"0.25\" persistent=\"true\"/></MODEL>");
    WriteSkin("default.xml", 90, "<PARAM_TEXT param_id=\"zoom\"/>");
    instance.internals.Init(instance.internals.GetInputValues(), instance.internals.GetOutputValues());
    ASSERT_TRUE(Open());
    using DataModel::Objects::ICaptureParam;
    auto* shared = dynamic_cast<CPluginSkinModel*>(instance.internals.GetModel().GetSkinModel());
    ASSERT_NE(shared, nullptr);
    auto* zoom = SkinEngine::FindObject<ICaptureParam>(shared->GetModel().GetObjects(), "zoom");
    ASSERT_NE(zoom, nullptr);

    std::atomic<bool> done{false};
    std::thread host(
        [&]
        {
            for (int i = 0; i < 200; ++i)
            {
                const std::string text = instance.SaveText();
                EXPECT_TRUE(instance.LoadText(text));
            }
            done = true;
        });
    float value = 0.0F;
    while (!done)
    {
        value = value < 1.0F ? value + 0.125F : 0.0F;
        zoom->SetValue(value);
        editor->Pump();
    }
    host.join();

    Pump(); // takes over what was loaded last

    // What another thread loads is what is saved from then on, at once.
    zoom->SetValue(0.125F);
    PumpFor(120);
    std::string saved;
    std::thread([&] { saved = instance.SaveText(); }).join();
    zoom->SetValue(0.75F);
    PumpFor(120);
    std::thread(
        [&]
        {
            EXPECT_TRUE(instance.LoadText(saved));
            EXPECT_EQ(instance.SaveText(), saved);
        })
        .join();
    EXPECT_EQ(zoom->GetValue(), 0.75F) << "not on that thread";
    Pump();
    EXPECT_EQ(zoom->GetValue(), 0.125F);
    Close();
    EXPECT_EQ(zoom->GetValue(), 0.125F);
}

TEST_F(CAudioPluginSkinGUITest, AWidgetsCaptureReachesTheInstancesParameter)
{
    WriteSkin("default.xml", 90, "<PARAM_TEXT param_id=\"dsp.input1\"/>");
    ASSERT_TRUE(Open());
    using DataModel::Objects::ICaptureParam;
    const auto* object = editor->GetSkinWindow()->GetObjectsDictionary().Find("dsp.input1");
    ASSERT_NE(object, nullptr);
    auto* param = const_cast<ICaptureParam*>(SkinEngine::FindInterface<ICaptureParam>(*object));
    ASSERT_NE(param, nullptr);
    param->SetValue(param->GetInfo().GetMax());
    EXPECT_EQ(instance.GetInput(1), param->GetInfo().GetMax());
}

TEST_F(CAudioPluginSkinGUITest, OpensAndClosesOverAndOver)
{
    WriteSkin("default.xml", 90, "<PARAM_TEXT param_id=\"dsp.input1\"/>");
    for (int i = 0; i < 20; ++i)
    {
        ASSERT_TRUE(Open());
        instance.internals.GetEditor().Show();
        Pump();
    }
    Close();
}

} // namespace
} // namespace Mirel::Audio::Plugin
