#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Model/CModelImport.h"
#include "SkinWindowRig.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using Core::CSize;

using CGUISkinWindowTest = SkinWindowRig;

/// Read without a fault, but an error all the same.
const std::string misplaced = "<TABLE_ROW/>";

const std::string box = "<COLUMN width=\"120\" height=\"50\"/>";

TEST_F(CGUISkinWindowTest, IsEmptyBeforeTheFirstLoad)
{
    EXPECT_FALSE(window->IsLoaded());
    EXPECT_EQ(window->GetObjectsDictionary().GetCount(), 0);
    EXPECT_STREQ(window->GetEngineLanguageVersion(), "1.8");
    EXPECT_TRUE(window->GetShowInfo());
    EXPECT_TRUE(window->GetShowWarnings());
    EXPECT_EQ(window->GetRefreshPriority(), 0);
}

TEST_F(CGUISkinWindowTest, LoadsASkinAndSaysSo)
{
    Tests::CEventCounter loaded(window->GetLoadedEvent());
    EXPECT_TRUE(Open("", box)) << AllMessages();
    EXPECT_TRUE(window->IsLoaded());
    EXPECT_EQ(loaded.Take(), 1);
    EXPECT_TRUE(HasMessage("Pre-Parsing the model..."));
    EXPECT_TRUE(HasMessage("Parsing the skin..."));
    window->CloseSkin();
    EXPECT_FALSE(window->IsLoaded());
    EXPECT_EQ(loaded.Take(), 1);
}

TEST_F(CGUISkinWindowTest, TakesItsIdentityFromTheRoot)
{
    ASSERT_TRUE(Open("name=\"Neon\" author=\"A. Maker\" comment=\"Bright\" language_version=\"1.5\"", box));
    EXPECT_STREQ(window->GetSkinName(), "Neon");
    EXPECT_STREQ(window->GetSkinAuthor(), "A. Maker");
    EXPECT_STREQ(window->GetSkinComment(), "Bright");
    EXPECT_STREQ(window->GetSkinLanguageVersion(), "1.5");
    EXPECT_STREQ(window->GetEngineLanguageVersion(), "1.8");
}

TEST_F(CGUISkinWindowTest, InfosAreShownIfTheRootSaysTrueOrNothing)
{
    ASSERT_TRUE(Open("", box));
    EXPECT_TRUE(window->GetShowInfo());
    ASSERT_TRUE(Open("show_info=\"yes\"", box));
    EXPECT_FALSE(window->GetShowInfo());
    ASSERT_TRUE(Open("show_info=\"true\"", box));
    EXPECT_TRUE(window->GetShowInfo());
}

TEST_F(CGUISkinWindowTest, WarningsAreShownUnlessTheRootSaysFalse)
{
    ASSERT_TRUE(Open("show_warnings=\"no\"", box));
    EXPECT_TRUE(window->GetShowWarnings());
    ASSERT_TRUE(Open("show_warnings=\"false\"", box));
    EXPECT_FALSE(window->GetShowWarnings());
    ASSERT_TRUE(Open("", box));
    EXPECT_TRUE(window->GetShowWarnings());
}

TEST_F(CGUISkinWindowTest, ItsSizeIsThatOfTheContent)
{
    ASSERT_TRUE(Open("", box));
    EXPECT_EQ(window->GetSize(), (CSize{120, 50}));
}

TEST_F(CGUISkinWindowTest, WithAWidthAndNoHeightTheHeightIsThatOfTheContent)
{
    ASSERT_TRUE(Open("width=\"400\"", box));
    EXPECT_EQ(window->GetSize(), (CSize{400, 50}));
    ASSERT_TRUE(Open("height=\"300\"", box));
    EXPECT_EQ(window->GetSize(), (CSize{120, 300}));
    ASSERT_TRUE(Open("width=\"77\" height=\"66\"", box));
    EXPECT_EQ(window->GetSize(), (CSize{77, 66}));
}

TEST_F(CGUISkinWindowTest, ContentWithoutASizeGivesAWindowOfTwentyByTwenty)
{
    ASSERT_TRUE(Open(""));
    EXPECT_EQ(window->GetSize(), (CSize{20, 20}));
    ASSERT_TRUE(Open("light_mode=\"false\""));
    EXPECT_EQ(window->GetSize(), (CSize{20, 20}));
}

TEST_F(CGUISkinWindowTest, WithoutLightModeTheRootIsTheWindowItself)
{
    ASSERT_TRUE(Open("light_mode=\"false\"", box));
    EXPECT_EQ(window->GetSize(), (CSize{120, 50}));
    EXPECT_EQ(window->GetChildCount(), 0);
    ASSERT_TRUE(Open("", box));
    EXPECT_EQ(window->GetChildCount(), 1) << "the host of the light widgets";
    ASSERT_TRUE(Open("system_widget=\"true\"", box));
    EXPECT_EQ(window->GetChildCount(), 0);
    EXPECT_EQ(window->GetSize(), (CSize{120, 50}));
}

TEST_F(CGUISkinWindowTest, TheBackgroundColourFillsTheWindow)
{
    ASSERT_TRUE(Open("background_color=\"#102030\" width=\"60\" height=\"40\""));
    EXPECT_EQ(PixelAt(0, 0), 0x102030U);
    EXPECT_EQ(PixelAt(59, 39), 0x102030U);
    EXPECT_EQ(PixelAt(60, 39), 0U);
}

TEST_F(CGUISkinWindowTest, TheRefreshPriorityChoosesWhatDrivesTheTimers)
{
    ASSERT_TRUE(Open("refresh_priority=\"other\"", box));
    EXPECT_EQ(window->GetRefreshPriority(), 0);
    EXPECT_FALSE(window->GetTimers().HasThread());
    ASSERT_TRUE(Open("refresh_priority=\"normal\"", box));
    EXPECT_EQ(window->GetRefreshPriority(), 1);
    EXPECT_TRUE(window->GetTimers().HasThread());
    ASSERT_TRUE(Open("refresh_priority=\"high\"", box));
    EXPECT_EQ(window->GetRefreshPriority(), 2);
    EXPECT_TRUE(window->GetTimers().HasThread());
    ASSERT_TRUE(Open("", box));
    EXPECT_EQ(window->GetRefreshPriority(), 0);
    EXPECT_FALSE(window->GetTimers().HasThread());
}

TEST_F(CGUISkinWindowTest, ItsTimersTickWhileASkinIsLoadedWhicheverDrivesThem)
{
    struct CTicks : Core::ICommand
    {
        void Execute() override
        {
            ++count;
            isElsewhere = isElsewhere || std::this_thread::get_id() != thread;
        }
        int count = 0;
        bool isElsewhere = false;
        std::thread::id thread = std::this_thread::get_id();
    } ticks;
    window->GetTimers().GetSerializer().AddTimer(10, &ticks);
    PumpFor(40);
    EXPECT_EQ(ticks.count, 0) << "nothing is loaded";
    for (const char* priority : {"", "refresh_priority=\"normal\""})
    {
        ASSERT_TRUE(Open(priority, box));
        ticks.count = 0;
        PumpFor(150);
        EXPECT_GT(ticks.count, 1);
        EXPECT_FALSE(ticks.isElsewhere);
    }
    EXPECT_FALSE(Open("", "<NO_SUCH"));
    ticks.count = 0;
    PumpFor(40);
    EXPECT_EQ(ticks.count, 0) << "the load has failed";
    Core::ICommand* command = &ticks;
    window->GetTimers().GetSerializer().RemoveTimer(command, false);
}

TEST_F(CGUISkinWindowTest, TheRefreshEventComesEveryFiftyMilliseconds)
{
    Tests::CEventCounter refreshes(window->GetRefreshEvent());
    PumpFor(80);
    EXPECT_EQ(refreshes.Take(), 0);
    ASSERT_TRUE(Open("", box));
    PumpFor(230);
    const int seen = refreshes.Take();
    EXPECT_GE(seen, 2);
    EXPECT_LE(seen, 5);
    window->CloseSkin();
    PumpFor(80);
    EXPECT_EQ(refreshes.Take(), 0);
}

TEST_F(CGUISkinWindowTest, AFailedLoadLeavesTheWindowEmptyAndAbleToLoad)
{
    EXPECT_FALSE(OpenText("<SKIN><COLUMN></SKIN>"));
    EXPECT_FALSE(window->IsLoaded());
    EXPECT_EQ(window->GetObjectsDictionary().GetCount(), 0);
    EXPECT_EQ(window->GetChildCount(), 0);
    EXPECT_TRUE(HasMessage("Fatal error: skin parsing failed"));
    EXPECT_TRUE(Open("", box)) << AllMessages();
    EXPECT_FALSE(HasMessage("Fatal error: skin parsing failed"));
}

TEST_F(CGUISkinWindowTest, AFileThatIsNotThereFails)
{
    window->SetSkinPath(folder.GetPath("none.xml").c_str());
    EXPECT_FALSE(window->OpenSkin(&frame));
    EXPECT_TRUE(HasMessage("Fatal error: skin parsing failed"));
}

TEST_F(CGUISkinWindowTest, AnErrorInTheLogFailsTheLoadEvenIfTheFileIsRead)
{
    EXPECT_FALSE(Open("", misplaced));
    EXPECT_FALSE(window->IsLoaded());
}

TEST_F(CGUISkinWindowTest, WithoutAParentItDoesNotOpen)
{
    folder.Write("skin.xml", "<SKIN/>");
    window->SetSkinPath(folder.GetPath("skin.xml").c_str());
    EXPECT_FALSE(window->OpenSkin(nullptr));
    GUI::CNativeRunLoop otherLoop;
    GUI::COffscreenPlatform otherPlatform(otherLoop);
    GUI::CFrameWindow other(otherPlatform, "Other", {10, 10});
    EXPECT_FALSE(window->OpenSkin(&other)) << "its timers belong to another loop";
    EXPECT_EQ(other.GetContent(), nullptr);
}

TEST_F(CGUISkinWindowTest, MovesFromParentToParent)
{
    ASSERT_TRUE(Open("", box));
    GUI::CFrameWindow other(platform, "Other", {10, 10});
    EXPECT_TRUE(window->OpenSkin(&other));
    EXPECT_EQ(other.GetContent(), window.get());
    EXPECT_EQ(frame.GetContent(), nullptr);
}

TEST_F(CGUISkinWindowTest, ShowsItsValuesAsObjects)
{
    ASSERT_TRUE(Open("", windowValues)) << AllMessages();
    EXPECT_EQ(ParamValue("window.opacity"), 1.0F);
    EXPECT_EQ(ParamValue("window.loaded"), 1.0F);
    const IConstParamInfo& opacity = Find<IConstCaptureParam>("window.opacity")->GetInfo();
    EXPECT_STREQ(opacity.GetName(), "Window Opacity");
    EXPECT_EQ(opacity.GetMin(), 0.0F);
    EXPECT_EQ(opacity.GetMax(), 1.0F);
    EXPECT_EQ(opacity.GetType(), 2);
    const IConstParamInfo& loaded = Find<IConstCaptureParam>("window.loaded")->GetInfo();
    EXPECT_STREQ(loaded.GetName(), "Window Loaded");
    EXPECT_EQ(loaded.GetType(), 1);
    char* text = nullptr;
    loaded.GetValueToText().ToText(1.0F, text);
    EXPECT_STREQ(text, "Loaded");
    delete[] text;
    EXPECT_NE(window->GetObjectsDictionary().Find("model_thread"), nullptr);
}

TEST_F(CGUISkinWindowTest, TheModelThreadTakesCalls)
{
    ASSERT_TRUE(Open("", box));
    const auto* object = window->GetObjectsDictionary().Find("model_thread");
    ASSERT_NE(object, nullptr);
    EXPECT_NE(object->GetInterface("IThreadInvoker"), nullptr);
}

TEST_F(CGUISkinWindowTest, AFailedLoadLeavesLoadedAtZero)
{
    float seen = -1.0F;
    MakeWindow([&seen, this](ISkinModel&) { seen = window->IsLoaded() ? 1.0F : 0.0F; });
    EXPECT_FALSE(Open("", windowValues + misplaced));
    EXPECT_EQ(seen, 0.0F);
    EXPECT_FALSE(window->IsLoaded());
}

TEST_F(CGUISkinWindowTest, GivesTheTopLevelWindowAnAlphaThatCanStillBeSeen)
{
    ASSERT_TRUE(Open("", windowValues));
    const auto* native = static_cast<const GUI::COffscreenWindow*>(frame.GetNativeWindow());
    Tests::CEventCounter changes(window->GetOpacityChangedEvent());
    window->SetOpacity(0.0F);
    EXPECT_FLOAT_EQ(native->GetOpacity(), static_cast<float>(35.5 * 0.003921569));
    EXPECT_EQ(window->GetOpacity(), 0.0F);
    EXPECT_EQ(ParamValue("window.opacity"), 0.0F);
    window->SetOpacity(0.5F);
    EXPECT_FLOAT_EQ(native->GetOpacity(), static_cast<float>((220.0 * 0.5 + 35.5) * 0.003921569));
    window->SetOpacity(0.5F);
    EXPECT_EQ(changes.Take(), 2);
    ASSERT_TRUE(Open("", windowValues));
    EXPECT_EQ(window->GetOpacity(), 1.0F) << "each load begins with it";
}

TEST_F(CGUISkinWindowTest, OpacityReadsAsOneWhereItCannotBeSeen)
{
    GUI::SNativeWindowOptions options;
    options.kind = GUI::ENativeWindowKind::Child;
    options.foreignParent = 1;
    GUI::CWindow child(platform, options);
    ASSERT_NE(child.GetNativeWindow(), nullptr);
    folder.Write("skin.xml", "<SKIN/>");
    window->SetSkinPath(folder.GetPath("skin.xml").c_str());
    ASSERT_TRUE(window->OpenSkin(&child));
    window->SetOpacity(0.25F);
    EXPECT_EQ(window->GetOpacity(), 1.0F);
    child.SetContent(nullptr, false);
}

TEST_F(CGUISkinWindowTest, MessagesComeWithTheirPlaces)
{
    EXPECT_FALSE(OpenText("<SKIN>\n<COLUMN>\n<TABLE_ROW/>\n</COLUMN>\n</SKIN>"));
    bool found = false;
    for (const SSkinMessage& message : window->GetMessages())
    {
        if (message.kind == CoreUtilities::CMessageKind::Error)
        {
            EXPECT_EQ(message.place, "skin.xml:3") << message.text;
            found = true;
        }
    }
    EXPECT_TRUE(found) << AllMessages();
}

TEST_F(CGUISkinWindowTest, MessagesAreNotShownUnlessAskedFor)
{
    EXPECT_FALSE(OpenText("<SKIN><COLUMN></SKIN>"));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(CGUISkinWindowTest, ErrorsAreShownInOneDialog)
{
    window->SetShowParsingFailure(true);
    EXPECT_FALSE(Open("show_info=\"false\"", misplaced));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].title, "Skin Parsing Error");
    EXPECT_EQ(dialogs.messages[0].kind, GUI::EMessageKind::Error);
    const std::string& text = dialogs.messages[0].text;
    EXPECT_EQ(text.rfind("There were errors while parsing the skin:\n- error: ", 0), 0U) << text;
    EXPECT_EQ(text.find("info: "), std::string::npos);
}

TEST_F(CGUISkinWindowTest, InfosAreShownAfterAGoodParse)
{
    window->SetShowParsingFailure(true);
    ASSERT_TRUE(Open("", box));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].title, "Skin Parsing Info");
    EXPECT_EQ(dialogs.messages[0].text.rfind("Information logged during skin parsing:\n- info: ", 0), 0U);
    ASSERT_TRUE(Open("show_info=\"false\"", box));
    EXPECT_EQ(dialogs.messages.size(), 1U) << "nothing to show";
}

TEST_F(CGUISkinWindowTest, ObjectsOfTheProgramAreThereIfTheSkinWantsThem)
{
    CSkinModel outside;
    CCaptureParam level;
    outside.AddParam("dsp.level", &level, 1, false);
    CCaptureParam other;
    outside.AddParam("dsp.other", &other, 1, false);
    std::unique_ptr<CModelImport> import;
    MakeWindow([&](ISkinModel& model) { import = std::make_unique<CModelImport>(outside, model); });
    ASSERT_TRUE(Open("", "<PARAM_TEXT param_id=\"dsp.level\"/>")) << AllMessages();
    EXPECT_NE(window->GetObjectsDictionary().Find("dsp.level"), nullptr);
    EXPECT_EQ(window->GetObjectsDictionary().Find("dsp.other"), nullptr);
    outside.RemoveObject("dsp.level");
    EXPECT_EQ(window->GetObjectsDictionary().Find("dsp.level"), nullptr);
    window.reset();
    import.reset();
}

TEST_F(CGUISkinWindowTest, LinksInASkinMoveTheObjectsOfItsWidgets)
{
    CSkinModel outside;
    CCaptureParam level(CParamInfo(ValueKindReal, 0.0F, 1.0F, 0.0F, "Level", "", ""));
    level.SetValue(0.5F);
    outside.AddParam("dsp.level", &level, 1, false);
    std::unique_ptr<CModelImport> import;
    MakeWindow([&](ISkinModel& model) { import = std::make_unique<CModelImport>(outside, model); });
    ASSERT_TRUE(Open("", "<PARAM_LINK from=\"dsp.level\" to=\"window.opacity\" "
                         "trigger_condition=\"always\"/>" +
                             box))
        << AllMessages();
    EXPECT_TRUE(HasMessage("Linking objects...")) << AllMessages();
    EXPECT_EQ(window->GetOpacity(), 0.5F) << AllMessages();
    level.SetValue(0.25F);
    EXPECT_EQ(window->GetOpacity(), 0.25F);
    window.reset();
    import.reset();
}

TEST_F(CGUISkinWindowTest, KeepsThePersistentValuesOfASkinOverALoad)
{
    const std::string skin = "<PARAM id=\"mine\" min=\"0\" max=\"1\" default=\"0.25\" persistent=\"true\"/>"
                             "<PARAM_TEXT param_id=\"mine\"/>";
    ASSERT_TRUE(Open("", skin)) << AllMessages();
    EXPECT_EQ(ParamValue("mine"), 0.25F);
    const_cast<ICaptureParam*>(Find<ICaptureParam>("mine"))->SetValue(0.75F);
    Serialization::CMemDataObject saved;
    EXPECT_TRUE(window->SaveState(saved));
    ASSERT_TRUE(Open("", skin));
    EXPECT_EQ(ParamValue("mine"), 0.75F) << "the same skin";
    MakeWindow();
    EXPECT_TRUE(window->LoadState(saved));
    ASSERT_TRUE(Open("", skin));
    EXPECT_EQ(ParamValue("mine"), 0.75F) << "another window with that state";
}

TEST_F(CGUISkinWindowTest, VariablesOfTheProgramReachTheSkin)
{
    window->SetVariable("PLUGIN_NAME", "Scope");
    ASSERT_TRUE(Open("name=\"For $PLUGIN_NAME$\"", box)) << AllMessages();
    EXPECT_STREQ(window->GetSkinName(), "For Scope");
}

TEST_F(CGUISkinWindowTest, ASizeFromOutsideLaysTheSkinOutAnew)
{
    ASSERT_TRUE(
        Open("", "<COLUMN width=\"100%\" height=\"100%\"><COLUMN width=\"120\" height=\"50\"/></COLUMN>"));
    Tests::CEventCounter resized(window->GetContentResizedEvent());
    window->SetViewSize({300, 90});
    EXPECT_EQ(window->GetSize(), (CSize{300, 90}));
    EXPECT_EQ(resized.Take(), 0) << "the one who asked knows";
    window->SetViewSize({0, 90});
    EXPECT_EQ(window->GetSize(), (CSize{300, 90}));
}

TEST_F(CGUISkinWindowTest, SavesItsStateInItsSecondVersion)
{
    ASSERT_TRUE(Open("", box));
    Serialization::CMemDataObject saved;
    EXPECT_TRUE(window->SaveState(saved));
    int version = 0;
    EXPECT_TRUE(saved.Read("version", version));
    EXPECT_EQ(version, 2);
    EXPECT_TRUE(saved.Exists("state"));
    EXPECT_TRUE(window->LoadState(saved));
}

TEST_F(CGUISkinWindowTest, ReadsAStateOfTheFirstVersionFromItsFields)
{
    CSkinModelState state;
    state.params.push_back({"p", 0.5F});
    Serialization::CMemDataObject fields;
    state.Serialize(fields);
    fields.Write("version", 1);
    EXPECT_TRUE(window->LoadState(fields));
    Serialization::CMemDataObject saved;
    window->SaveState(saved);
    CSkinModelState read;
    EXPECT_TRUE(saved.Read("state", static_cast<Serialization::IDeSerialize&>(read)));
    ASSERT_EQ(read.params.size(), 1U);
    EXPECT_EQ(read.params[0].value, 0.5F);
}

TEST_F(CGUISkinWindowTest, AStateThatIsMissingClearsWhatWasKept)
{
    CSkinModelState state;
    state.params.push_back({"p", 0.5F});
    Serialization::CMemDataObject kept;
    kept.Write("version", 2);
    kept.Write("state", static_cast<const Serialization::ISerialize&>(state));
    EXPECT_TRUE(window->LoadState(kept));
    Serialization::CMemDataObject empty;
    empty.Write("version", 2);
    EXPECT_FALSE(window->LoadState(empty));
    Serialization::CMemDataObject saved;
    window->SaveState(saved);
    CSkinModelState read;
    saved.Read("state", static_cast<Serialization::IDeSerialize&>(read));
    EXPECT_TRUE(read.params.empty());
}

TEST_F(CGUISkinWindowTest, LoadsManyTimesWithoutLeavingAnythingBehind)
{
    for (int i = 0; i < 50; ++i)
    {
        ASSERT_TRUE(Open("refresh_priority=\"" + std::string(i % 3 == 0 ? "high" : "") + "\" light_mode=\"" +
                             (i % 2 == 0 ? "true" : "false") + "\"",
                         box + windowValues));
        loop.Pump(0);
    }
    window->CloseSkin();
    EXPECT_EQ(window->GetChildCount(), 0);
}

} // namespace
} // namespace Mirel::SkinEngine
