#include "Mirel/GUI/DrawnDialogs/CDrawnDialogs.h"

#include "Mirel/GUI/DrawnDialogs/CAlertDialog.h"
#include "Mirel/GUI/DrawnDialogs/CBlockingDialogs.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnFileDialog.h"
#include "Mirel/GUI/Native/Dialogs/CDesktopDialogs.h"
#include "Mirel/GUI/Native/Dialogs/CFileDialog.h"
#include "Mirel/GUI/Native/Dialogs/CMessageBox.h"
#include "PopupRig.h"
#include "Support/CScriptedDialogs.h"
#include "Support/CTemporaryFolder.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <optional>

using namespace Mirel::GUI;

namespace
{

class CDrawnDialogsTest : public testing::Test
{
public:
    CAlertDialog* Ask(EMessageButtons buttons)
    {
        SMessage message;
        message.title = "Error";
        message.text = "Could not load skin. Please choose a valid skin file.";
        message.kind = EMessageKind::Error;
        message.buttons = buttons;
        answer.reset();
        id = dialogs.ShowMessage(message, 0, [this](EMessageAnswer given) { answer = given; });
        rig.platform.Pump();
        return static_cast<CAlertDialog*>(dialogs.Find(id));
    }

    COffscreenWindow& Top() { return *rig.platform.GetWindow(rig.platform.GetWindowCount() - 1); }

    void ClickWidget(const CWindow& window, const CLightWidget& widget)
    {
        const Mirel::Graphics::CRect rect(widget.GetAbsolutePosition(), widget.GetSize());
        rig.ClickAt(window.ToScreen(Tests::CPopupRig::MiddleOf(rect)));
    }

    Tests::CPopupRig rig;
    CDrawnDialogs dialogs{rig.platform, Tests::TestLook(), rig.window.get()};
    IDialogs::DialogId id = 0;
    std::optional<EMessageAnswer> answer;
};

TEST_F(CDrawnDialogsTest, AlertIsADialogOverItsOwner)
{
    ASSERT_NE(Ask(EMessageButtons::OkCancel), nullptr);
    EXPECT_EQ(Top().GetKind(), ENativeWindowKind::Dialog);
    EXPECT_EQ(Top().GetTitle(), "Error");
    EXPECT_EQ(Top().GetOwner(), rig.window->GetNativeWindow());
    EXPECT_TRUE(Top().HasFocus());
    EXPECT_TRUE(Tests::Shows(Top(), Tests::TestLook().background));
    EXPECT_TRUE(Tests::Shows(Top(), Tests::TestLook().error));
}

TEST_F(CDrawnDialogsTest, ButtonsAnswer)
{
    CAlertDialog* alert = Ask(EMessageButtons::YesNoCancel);
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->GetButton(0)->GetText(), "Yes");
    EXPECT_EQ(alert->GetButton(1)->GetText(), "No");
    EXPECT_EQ(alert->GetButton(2)->GetText(), "Cancel");
    EXPECT_EQ(alert->GetButton(3), nullptr);
    ClickWidget(*alert, *alert->GetButton(1));
    EXPECT_EQ(answer, EMessageAnswer::No);
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
    alert = Ask(EMessageButtons::OkCancel);
    EXPECT_EQ(alert->GetButton(0)->GetText(), "OK");
    ClickWidget(*alert, *alert->GetButton(1));
    EXPECT_EQ(answer, EMessageAnswer::Cancel);
}

TEST_F(CDrawnDialogsTest, KeysAnswer)
{
    Ask(EMessageButtons::Ok);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(answer, EMessageAnswer::Yes);
    Ask(EMessageButtons::YesNoCancel);
    rig.PressKey(ENativeKey::Tab);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(answer, EMessageAnswer::No);
    Ask(EMessageButtons::YesNoCancel);
    rig.PressKey(ENativeKey::Right);
    rig.PressKey(ENativeKey::Right);
    rig.PressKey(ENativeKey::Right);
    rig.Type(" ");
    EXPECT_EQ(answer, EMessageAnswer::Cancel);
}

TEST_F(CDrawnDialogsTest, KeysComeBackToTheOwnerThatHadThem)
{
    rig.window->GetNativeWindow()->SetFocus();
    Ask(EMessageButtons::Ok);
    EXPECT_FALSE(rig.window->GetNativeWindow()->HasFocus());
    rig.PressKey(ENativeKey::Return);
    EXPECT_TRUE(rig.window->GetNativeWindow()->HasFocus());

    CWindow other(rig.platform, {});
    other.Show(true);
    Ask(EMessageButtons::Ok);
    rig.PressKey(ENativeKey::Return);
    EXPECT_FALSE(rig.window->GetNativeWindow()->HasFocus());
}

TEST_F(CDrawnDialogsTest, GivingUpAnswersAsTheButtonsAllow)
{
    for (const auto& [buttons, expected] : {std::pair(EMessageButtons::Ok, EMessageAnswer::Yes),
                                            std::pair(EMessageButtons::OkCancel, EMessageAnswer::Cancel),
                                            std::pair(EMessageButtons::YesNo, EMessageAnswer::No),
                                            std::pair(EMessageButtons::YesNoCancel, EMessageAnswer::Cancel)})
    {
        Ask(buttons);
        rig.PressKey(ENativeKey::Escape);
        EXPECT_EQ(answer, expected);
        Ask(buttons);
        rig.platform.AskToClose();
        EXPECT_EQ(answer, expected);
        EXPECT_EQ(rig.platform.GetWindowCount(), 1);
    }
}

TEST_F(CDrawnDialogsTest, OwnerGetsNoInputMeanwhile)
{
    auto* widget = new CWidget();
    Tests::CNotingMouse target("w", rig.script);
    widget->SetMouseTarget(&target, false);
    widget->SetSize({400, 300});
    widget->Show(true);
    rig.window->SetContent(widget, true);
    Ask(EMessageButtons::Ok);
    EXPECT_TRUE(rig.window->IsInputBlocked());
    rig.script.clear();
    rig.ClickAt({1001, 1001});
    EXPECT_EQ(rig.TakeScript(), "");
    rig.Native().SetFocus();
    Tests::CEventCounter closing(rig.window->GetClosingEvent());
    rig.platform.AskToClose();
    EXPECT_EQ(closing.Take(), 0);
    dialogs.Cancel(id);
    EXPECT_FALSE(rig.window->IsInputBlocked());
    EXPECT_FALSE(answer.has_value());
    rig.ClickAt({1001, 1001});
    EXPECT_NE(rig.TakeScript().find("w.click"), std::string::npos);
    rig.window->SetContent(nullptr, false);
}

TEST_F(CDrawnDialogsTest, TwoDialogsBlockUntilBothAreAnswered)
{
    Ask(EMessageButtons::Ok);
    const IDialogs::DialogId first = id;
    Ask(EMessageButtons::Ok);
    dialogs.Cancel(id);
    EXPECT_TRUE(rig.window->IsInputBlocked());
    dialogs.Cancel(first);
    EXPECT_FALSE(rig.window->IsInputBlocked());
}

TEST_F(CDrawnDialogsTest, MessageBoxRunsTheLoopUntilTheAnswer)
{
    CMessageBox box(dialogs, rig.loop);
    int turns = 0;
    rig.loop.AddTimer(5,
                      [this, &turns]
                      {
                          if (++turns == 3)
                          {
                              rig.PressKey(ENativeKey::Return);
                          }
                      });
    SMessage message;
    message.text = "Loading global skin.";
    message.buttons = EMessageButtons::YesNo;
    EXPECT_EQ(box.Run(message), EMessageAnswer::Yes);
    EXPECT_GE(turns, 3);
}

TEST_F(CDrawnDialogsTest, OwnerThatGoesFirstIsNotTouched)
{
    Ask(EMessageButtons::Ok);
    rig.window.reset();
    dialogs.SetOwnerWindow(nullptr);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(answer, EMessageAnswer::Yes);
}

TEST_F(CDrawnDialogsTest, HundredDialogsLeaveNoWindows)
{
    for (int i = 0; i < 100; ++i)
    {
        Ask(EMessageButtons::YesNo);
        rig.PressKey(ENativeKey::Escape);
    }
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
    EXPECT_FALSE(rig.window->IsInputBlocked());
}

TEST_F(CDrawnDialogsTest, IsWhatTheDesktopsDialogsFallBackOn)
{
    CDesktopDialogs::SOptions options;
    options.folders = "/nowhere";
    options.fallback = &dialogs;
    CDesktopDialogs desktop(rig.loop, options);
    bool isAnswered = false;
    ASSERT_NE(desktop.ShowMessage({}, 0, [&](EMessageAnswer) { isAnswered = true; }), 0U);
    rig.PressKey(ENativeKey::Return);
    EXPECT_TRUE(isAnswered);
}

TEST_F(CDrawnDialogsTest, DialogsOfTheDesktopBlockTheWindowTooUntilTheyAreOver)
{
    Tests::CScriptedDialogs desktop;
    {
        CBlockingDialogs blocking(desktop, *rig.window);
        bool isAnswered = false;
        const auto first = blocking.ShowMessage({}, 0, [&](EMessageAnswer) { isAnswered = true; });
        const auto second = blocking.ChooseFile({}, 0, nullptr);
        EXPECT_TRUE(rig.window->IsInputBlocked());
        desktop.Answer(EMessageAnswer::Yes);
        EXPECT_TRUE(isAnswered);
        EXPECT_TRUE(rig.window->IsInputBlocked());
        blocking.Cancel(second);
        EXPECT_FALSE(rig.window->IsInputBlocked());
        EXPECT_NE(first, 0U);
        desktop.answers.push_back(EMessageAnswer::No);
        blocking.ShowMessage({}, 0, nullptr);
        EXPECT_FALSE(rig.window->IsInputBlocked()) << "answered at once";
        desktop.canShow = false;
        EXPECT_EQ(blocking.ShowMessage({}, 0, nullptr), 0U);
        EXPECT_FALSE(rig.window->IsInputBlocked());
        desktop.canShow = true;
        blocking.ShowMessage({}, 0, nullptr);
        EXPECT_TRUE(rig.window->IsInputBlocked());
    }
    EXPECT_FALSE(rig.window->IsInputBlocked());
    EXPECT_EQ(desktop.cancelled.size(), 2U);
}

class CDrawnFileDialogTest : public CDrawnDialogsTest
{
public:
    CDrawnFileDialogTest()
    {
        std::filesystem::create_directories(Path("Skins/Deep"));
        Touch("Skins/alpha.xml");
        Touch("Skins/Beta.XML");
        Touch("Skins/notes.txt");
        Touch("Skins/.hidden.xml");
        request.title = "Choose global skin";
        request.folder = Path("Skins");
        request.defaultExtension = "xml";
        request.filters = {{"Skin Files (*.xml)", {"*.xml"}}, {"All Files", {"*"}}};
    }

    std::string Path(const std::string& name) const { return folder.GetPath(name); }
    void Touch(const std::string& name) const { folder.Write(name, "x"); }

    CDrawnFileDialog* Choose()
    {
        chosen.reset();
        id = dialogs.ChooseFile(request, 0, [this](const std::string& path) { chosen = path; });
        rig.platform.Pump();
        return static_cast<CDrawnFileDialog*>(dialogs.Find(id));
    }

    static std::string NamesOf(const CDrawnFileDialog& dialog)
    {
        std::string names;
        for (int i = 0; i < dialog.GetList().GetCount(); ++i)
        {
            names += dialog.GetList().GetItem(i).text + " ";
        }
        return names;
    }

    Tests::CTemporaryFolder folder;
    SFileRequest request;
    std::optional<std::string> chosen;
};

TEST_F(CDrawnFileDialogTest, ListsFoldersFirstAndFilesOfTheFilter)
{
    CDrawnFileDialog* dialog = Choose();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(NamesOf(*dialog), "Deep alpha.xml Beta.XML ");
    ClickWidget(*dialog, dialog->GetFilterButton());
    rig.PressKey(ENativeKey::End);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(NamesOf(*dialog), "Deep alpha.xml Beta.XML notes.txt ");
    EXPECT_EQ(dialog->GetFilterButton().GetText(), "All Files");
}

TEST_F(CDrawnFileDialogTest, DoubleClickAnswersWithTheFile)
{
    CDrawnFileDialog* dialog = Choose();
    dialog->GetList().Select(1);
    dialog->GetList().SetFocus();
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(chosen, Path("Skins/alpha.xml"));
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
    EXPECT_FALSE(rig.window->IsInputBlocked());
}

TEST_F(CDrawnFileDialogTest, SelectingPutsTheNameInTheFieldAndTheButtonOpensIt)
{
    CDrawnFileDialog* dialog = Choose();
    dialog->GetList().SetFocus();
    rig.PressKey(ENativeKey::End);
    EXPECT_EQ(dialog->GetNameField().GetText(), "Beta.XML");
    ClickWidget(*dialog, dialog->GetAcceptButton());
    EXPECT_EQ(chosen, Path("Skins/Beta.XML"));
}

TEST_F(CDrawnFileDialogTest, FoldersAreEnteredAndLeft)
{
    CDrawnFileDialog* dialog = Choose();
    dialog->GetList().SetFocus();
    rig.PressKey(ENativeKey::Home);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(dialog->GetFolder(), Path("Skins/Deep"));
    rig.PressKey(ENativeKey::Backspace);
    EXPECT_EQ(dialog->GetFolder(), Path("Skins"));
    EXPECT_EQ(dialog->GetList().GetSelected(), 0) << "the folder that it came from";
    dialog->GetNameField().SetText("Deep");
    dialog->Accept();
    EXPECT_EQ(dialog->GetFolder(), Path("Skins/Deep"));
    dialog->GetNameField().SetText("../..");
    dialog->Accept();
    EXPECT_EQ(dialog->GetFolder(), GetParentFolder(Path("Skins")));
    EXPECT_FALSE(chosen.has_value());
}

TEST_F(CDrawnFileDialogTest, RootIsItsOwnParent)
{
    request.folder = "/";
    CDrawnFileDialog* dialog = Choose();
    dialog->GoUp();
    EXPECT_EQ(dialog->GetFolder(), "/");
}

TEST_F(CDrawnFileDialogTest, TypedNameMayLeaveOutTheExtension)
{
    Choose();
    rig.Type("alpha");
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(chosen, Path("Skins/alpha.xml"));
}

TEST_F(CDrawnFileDialogTest, MissingFileIsShownAsWrong)
{
    CDrawnFileDialog* dialog = Choose();
    rig.Type("nothing.xml");
    rig.PressKey(ENativeKey::Return);
    EXPECT_TRUE(dialog->GetNameField().IsWrong());
    EXPECT_FALSE(chosen.has_value());
    rig.PressKey(ENativeKey::Escape);
    EXPECT_EQ(chosen, "");
}

TEST_F(CDrawnFileDialogTest, NewNameIsSavedWithTheExtension)
{
    request.isSave = true;
    request.fileName = "proposed.xml";
    CDrawnFileDialog* dialog = Choose();
    EXPECT_EQ(dialog->GetNameField().GetText(), "proposed.xml");
    rig.Type("fresh");
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(chosen, Path("Skins/fresh.xml"));
}

TEST_F(CDrawnFileDialogTest, FileThatStandsThereIsAskedAbout)
{
    request.isSave = true;
    CDrawnFileDialog* dialog = Choose();
    rig.Type("alpha");
    rig.PressKey(ENativeKey::Return);
    ASSERT_NE(dialog->GetQuestion(), nullptr);
    EXPECT_FALSE(chosen.has_value());
    EXPECT_TRUE(dialog->IsInputBlocked());
    rig.PressKey(ENativeKey::Escape);
    EXPECT_EQ(dialog->GetQuestion(), nullptr);
    EXPECT_FALSE(dialog->IsInputBlocked());
    dialog->GetNativeWindow()->SetFocus();
    dialog->Accept();
    ASSERT_NE(dialog->GetQuestion(), nullptr);
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(chosen, Path("Skins/alpha.xml"));
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
}

TEST_F(CDrawnFileDialogTest, NamesThatAreNotUtf8CanBeChosen)
{
    Touch("Skins/caf\xe9.xml");
    CDrawnFileDialog* dialog = Choose();
    EXPECT_NE(NamesOf(*dialog).find("caf?.xml"), std::string::npos);
    dialog->GetList().SetFocus();
    rig.Type("c");
    rig.PressKey(ENativeKey::Return);
    EXPECT_EQ(chosen, Path("Skins/caf\xe9.xml"));
}

TEST_F(CDrawnFileDialogTest, FileDialogRunsTheLoop)
{
    CFileDialog dialog(dialogs, rig.loop);
    dialog.SetFolder(Path("Skins"));
    rig.loop.AddTimer(5,
                      [this]
                      {
                          rig.Type("alpha.xml");
                          rig.PressKey(ENativeKey::Return);
                      });
    EXPECT_TRUE(dialog.RunOpen());
    EXPECT_EQ(dialog.GetPath(), Path("Skins/alpha.xml"));
}

TEST_F(CDrawnFileDialogTest, WindowThatGrowsGivesTheListItsRoom)
{
    CDrawnFileDialog* dialog = Choose();
    const CSize before = dialog->GetList().GetSize();
    Top().ResizeByUser({800, 700});
    EXPECT_EQ(dialog->GetList().GetSize().width, before.width + 260);
    EXPECT_EQ(dialog->GetList().GetSize().height, before.height + 300);
}

TEST_F(CDrawnFileDialogTest, FolderThatCannotBeReadIsEmpty)
{
    EXPECT_TRUE(ListFolder(Path("missing"), {}).empty());
}

} // namespace
