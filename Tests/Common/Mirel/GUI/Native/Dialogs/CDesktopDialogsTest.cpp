#include "Mirel/GUI/Native/Dialogs/CDesktopDialogs.h"
#include "Mirel/GUI/Native/Dialogs/CFileDialog.h"
#include "Mirel/GUI/Native/Dialogs/CMessageBox.h"
#include "Support/CScriptedDialogs.h"
#include "Support/CTemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Mirel::GUI::CDesktopDialogs;
using Mirel::GUI::CFileDialog;
using Mirel::GUI::CMessageBox;
using Mirel::GUI::CNativeRunLoop;
using Mirel::GUI::EMessageAnswer;
using Mirel::GUI::EMessageButtons;
using Mirel::GUI::EMessageKind;
using Mirel::GUI::IDialogs;
using Mirel::GUI::SFileRequest;
using Mirel::GUI::SMessage;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Tests::CScriptedDialogs;
using Tests::CTemporaryFolder;

namespace
{

/// A folder with programs that play those of the desktop.
class CDesktopDialogsTest : public testing::Test
{
public:
    void Install(const std::string& name, const std::string& script) const
    {
        folder.Write(name, "#!/bin/sh\n" + script);
        std::filesystem::permissions(folder.GetPath(name), std::filesystem::perms::owner_all);
    }

    /// Writes its arguments to a file of that name with ".arguments", each ended by a zero, and goes on.
    void InstallRecorder(const std::string& name, const std::string& rest) const
    {
        const std::string file = folder.GetPath(name + ".arguments");
        Install(name,
                "printf '%s\\0' \"$@\" > '" + file + ".new'\nmv '" + file + ".new' '" + file + "'\n" + rest);
    }

    std::vector<std::string> ReadArguments(const std::string& name) const
    {
        const std::string bytes = folder.Read(name + ".arguments");
        std::vector<std::string> arguments;
        for (std::size_t begin = 0; begin < bytes.size();)
        {
            arguments.emplace_back(bytes.c_str() + begin);
            begin += arguments.back().size() + 1;
        }
        return arguments;
    }

    std::unique_ptr<CDesktopDialogs> Make(IDialogs* fallback = nullptr)
    {
        CDesktopDialogs::SOptions options;
        options.folders = "/nowhere:" + folder.GetPath("");
        options.display = ":77";
        options.fallback = fallback;
        return std::make_unique<CDesktopDialogs>(loop, options);
    }

    bool PumpUntil(const std::function<bool()>& holds)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!holds() && std::chrono::steady_clock::now() < end)
        {
            loop.Pump(20);
        }
        return holds();
    }

    static bool IsRunning(int process) { return kill(process, 0) == 0; }

    CTemporaryFolder folder;
    CNativeRunLoop loop;
};

TEST_F(CDesktopDialogsTest, MessageComesBackWithItsAnswer)
{
    InstallRecorder("zenity", "exit 1");
    const auto dialogs = Make();
    std::vector<EMessageAnswer> answers;
    const SMessage message{"Title", "$(touch x); 'text' <b>\nline", EMessageKind::Warning,
                           EMessageButtons::YesNo};
    EXPECT_NE(dialogs->ShowMessage(message, 0, [&](EMessageAnswer answer) { answers.push_back(answer); }),
              0U);
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(PumpUntil([&] { return !answers.empty(); }));
    EXPECT_THAT(answers, ElementsAre(EMessageAnswer::No));
    EXPECT_THAT(ReadArguments("zenity"),
                ElementsAre("--question", "--no-markup", "--title=Title",
                            "--text=$(touch x); 'text' <b>\nline", "--ok-label=Yes", "--cancel-label=No"));
}

TEST_F(CDesktopDialogsTest, LoopTurnsWhileADialogIsOpen)
{
    Install("zenity", "sleep 0.3\nexit 0");
    const auto dialogs = Make();
    int ticks = 0;
    bool isAnswered = false;
    loop.AddTimer(10, [&] { ++ticks; });
    dialogs->ShowMessage({}, 0, [&](EMessageAnswer) { isAnswered = true; });
    ASSERT_TRUE(PumpUntil([&] { return isAnswered; }));
    EXPECT_GE(ticks, 5);
}

TEST_F(CDesktopDialogsTest, ChosenPathComesBack)
{
    InstallRecorder("zenity", "printf '/tmp/a file.xml\\n'");
    const auto dialogs = Make();
    std::string path;
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path, "/tmp/a file.xml");
}

TEST_F(CDesktopDialogsTest, GivingUpGivesAnEmptyPath)
{
    Install("zenity", "echo /tmp/x\nexit 1");
    const auto dialogs = Make();
    std::string path = "unset";
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return path != "unset"; }));
    EXPECT_EQ(path, "");
}

TEST_F(CDesktopDialogsTest, KDialogIsUsedWhereThereIsNoZenity)
{
    InstallRecorder("kdialog", "exit 2");
    const auto dialogs = Make();
    std::vector<EMessageAnswer> answers;
    dialogs->ShowMessage({"T", "x", EMessageKind::Information, EMessageButtons::YesNoCancel}, 0,
                         [&](EMessageAnswer answer) { answers.push_back(answer); });
    ASSERT_TRUE(PumpUntil([&] { return !answers.empty(); }));
    EXPECT_THAT(answers, ElementsAre(EMessageAnswer::Cancel));
    EXPECT_THAT(ReadArguments("kdialog"), ElementsAre("--title=T", "--yesnocancel=<qt>x</qt>"));
}

TEST_F(CDesktopDialogsTest, ProgramsOpenOnTheGivenDisplay)
{
    Install("zenity", "printf '%s\\n' \"$DISPLAY\"");
    const auto dialogs = Make();
    std::string path;
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path, ":77");
}

TEST_F(CDesktopDialogsTest, ProgramsInheritNoFiles)
{
    Install("zenity", "ls /proc/self/fd | tr '\\n' ' '");
    const int extra = dup(0); // stays open in a program that is run
    const auto dialogs = Make();
    std::string files;
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { files = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !files.empty(); }));
    close(extra);
    EXPECT_EQ(files, "0 1 2 3 ") << "3 is the folder that is listed";
}

TEST_F(CDesktopDialogsTest, OpenDialogIsKilledWithItsOwner)
{
    Install("zenity", "echo $$ > " + folder.GetPath("pid") + ".new\nmv " + folder.GetPath("pid") + ".new " +
                          folder.GetPath("pid") + "\nexec sleep 100");
    auto dialogs = Make();
    bool isAnswered = false;
    dialogs->ChooseFile({}, 0, [&](const std::string&) { isAnswered = true; });
    ASSERT_TRUE(PumpUntil([&] { return std::filesystem::exists(folder.GetPath("pid")); }));
    const int process = std::stoi(folder.Read("pid"));
    EXPECT_TRUE(IsRunning(process));
    dialogs.reset();
    EXPECT_FALSE(IsRunning(process)) << "neither running nor left unreaped";
    loop.Pump(100);
    EXPECT_FALSE(isAnswered);
}

TEST_F(CDesktopDialogsTest, CancelledDialogIsKilledWithoutAnAnswer)
{
    Install("zenity", "exec sleep 100");
    const auto dialogs = Make();
    bool isAnswered = false;
    const IDialogs::DialogId id = dialogs->ChooseFile({}, 0, [&](const std::string&) { isAnswered = true; });
    dialogs->Cancel(id);
    dialogs->Cancel(id);
    dialogs->Cancel(99);
    loop.Pump(100);
    EXPECT_FALSE(isAnswered);
}

TEST_F(CDesktopDialogsTest, ReceiverMayDestroyTheDialogs)
{
    Install("zenity", "exit 0");
    auto dialogs = Make();
    dialogs->ShowMessage({}, 0, [&](EMessageAnswer) { dialogs.reset(); });
    EXPECT_TRUE(PumpUntil([&] { return dialogs == nullptr; }));
    dialogs = Make();
    dialogs->ChooseFile({}, 0, [&](const std::string&) { dialogs.reset(); });
    EXPECT_TRUE(PumpUntil([&] { return dialogs == nullptr; }));
}

TEST_F(CDesktopDialogsTest, NameWithoutExtensionGetsTheDefaultOne)
{
    Install("zenity", "echo /nowhere/mine");
    const auto dialogs = Make();
    SFileRequest request;
    request.isSave = true;
    request.defaultExtension = "preset";
    std::string path;
    dialogs->ChooseFile(request, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path, "/nowhere/mine.preset");
    request.isSave = false;
    path.clear();
    dialogs->ChooseFile(request, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path, "/nowhere/mine") << "what exists has the name that it has";
}

TEST_F(CDesktopDialogsTest, FileFoundUnderTheCompletedNameIsNotReplacedUnasked)
{
    folder.Write("mine.preset", "old");
    // Asked twice for a name, since the first time the user does not want the file replaced.
    Install("zenity", "case \"$*\" in\n"
                      "*--question*) printf '%s\\n' \"$*\" >> " +
                          folder.GetPath("questions") +
                          "\n"
                          "  [ -e " +
                          folder.GetPath("again") +
                          " ]; exit $? ;;\n"
                          "*) [ -e " +
                          folder.GetPath("questions") + " ] && touch " + folder.GetPath("again") +
                          "\n"
                          "  echo " +
                          folder.GetPath("mine") + " ;;\nesac");
    const auto dialogs = Make();
    SFileRequest request;
    request.isSave = true;
    request.defaultExtension = "preset";
    std::string path;
    dialogs->ChooseFile(request, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path, folder.GetPath("mine.preset"));
    const std::string questions = folder.Read("questions");
    EXPECT_EQ(std::count(questions.begin(), questions.end(), '\n'), 2);
    EXPECT_NE(questions.find("A file named \"mine.preset\" already exists."), std::string::npos);
}

TEST_F(CDesktopDialogsTest, WithoutAProgramTheFallbackShows)
{
    CScriptedDialogs scripted;
    scripted.answers = {EMessageAnswer::No};
    const auto dialogs = Make(&scripted);
    std::vector<EMessageAnswer> answers;
    EXPECT_NE(dialogs->ShowMessage({"T", "x", EMessageKind::Error, EMessageButtons::Ok}, 0,
                                   [&](EMessageAnswer answer) { answers.push_back(answer); }),
              0U);
    EXPECT_THAT(answers, ElementsAre(EMessageAnswer::No));
    EXPECT_EQ(scripted.messages[0].text, "x");
    std::string path;
    const IDialogs::DialogId id =
        dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    EXPECT_NE(id, 0U);
    EXPECT_TRUE(scripted.Answer("/chosen"));
    EXPECT_EQ(path, "/chosen");
}

TEST_F(CDesktopDialogsTest, FallbacksDialogsGoWithTheOwnerToo)
{
    CScriptedDialogs scripted;
    auto dialogs = Make(&scripted);
    const IDialogs::DialogId first = dialogs->ChooseFile({}, 0, [](const std::string&) { FAIL(); });
    dialogs->ShowMessage({}, 0, [](EMessageAnswer) { FAIL(); });
    dialogs->Cancel(first);
    EXPECT_THAT(scripted.cancelled, ElementsAre(1U));
    dialogs.reset();
    EXPECT_THAT(scripted.cancelled, ElementsAre(1U, 2U));
}

TEST_F(CDesktopDialogsTest, WithNothingToShowItNothingIsShown)
{
    const auto dialogs = Make();
    EXPECT_EQ(dialogs->ShowMessage({}, 0, [](EMessageAnswer) { FAIL(); }), 0U);
    EXPECT_EQ(dialogs->ChooseFile({}, 0, [](const std::string&) { FAIL(); }), 0U);
    EXPECT_FALSE(dialogs->OpenPage("https://example.com"));
    CScriptedDialogs scripted;
    scripted.canShow = false;
    const auto passing = Make(&scripted);
    EXPECT_EQ(passing->ShowMessage({}, 0, [](EMessageAnswer) { FAIL(); }), 0U);
}

TEST_F(CDesktopDialogsTest, PageOpensWithTheAddressAsOneArgument)
{
    InstallRecorder("xdg-open", "exit 0");
    const auto dialogs = Make();
    const std::string address = "https://example.com/?plugin=a b&x='$(y)'";
    EXPECT_TRUE(dialogs->OpenPage(address));
    ASSERT_TRUE(PumpUntil([&] { return std::filesystem::exists(folder.GetPath("xdg-open.arguments")); }));
    EXPECT_THAT(ReadArguments("xdg-open"), ElementsAre(address));
    EXPECT_FALSE(dialogs->OpenPage("--version")) << "no address, an option";
    EXPECT_FALSE(dialogs->OpenPage(""));
}

TEST_F(CDesktopDialogsTest, PageGoesOnWithoutItsOwner)
{
    InstallRecorder("xdg-open", "sleep 0.2\ntouch " + folder.GetPath("opened"));
    auto dialogs = Make();
    EXPECT_TRUE(dialogs->OpenPage("https://example.com"));
    dialogs.reset();
    EXPECT_TRUE(PumpUntil([&] { return std::filesystem::exists(folder.GetPath("opened")); }));
}

TEST_F(CDesktopDialogsTest, HostThatTakesTheExitCodeLeavesTheOutput)
{
    Install("zenity", "echo /tmp/x");
    ASSERT_NE(signal(SIGCHLD, SIG_IGN), SIG_ERR); // children vanish by themselves
    const auto dialogs = Make();
    std::string path;
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    const bool isThere = PumpUntil([&] { return !path.empty(); });
    EXPECT_NE(signal(SIGCHLD, SIG_DFL), SIG_ERR);
    EXPECT_TRUE(isThere);
    EXPECT_EQ(path, "/tmp/x");
}

TEST_F(CDesktopDialogsTest, LongOutputIsReadButNotKept)
{
    Install("zenity", "head -c 300000 /dev/zero | tr '\\0' x");
    const auto dialogs = Make();
    std::string path;
    dialogs->ChooseFile({}, 0, [&](const std::string& chosen) { path = chosen; });
    ASSERT_TRUE(PumpUntil([&] { return !path.empty(); }));
    EXPECT_EQ(path.size(), 65536U);
}

TEST_F(CDesktopDialogsTest, MessageBoxWaitsForItsAnswer)
{
    Install("zenity", "sleep 0.1\nexit 1");
    const auto dialogs = Make();
    CMessageBox box(*dialogs, loop);
    EXPECT_EQ(box.Run({"T", "x", EMessageKind::Warning, EMessageButtons::OkCancel}), EMessageAnswer::Cancel);
}

TEST_F(CDesktopDialogsTest, FileDialogWaitsForItsAnswer)
{
    InstallRecorder("zenity", "echo /tmp/a");
    const auto dialogs = Make();
    CFileDialog dialog(*dialogs, loop);
    dialog.SetTitle("Save Preset As");
    dialog.AddFilter("Presets Files (*.preset)", "*.preset");
    dialog.SetDefaultExtension("preset");
    dialog.SetFolder("/tmp");
    dialog.SetFileName("b");
    EXPECT_TRUE(dialog.RunSave());
    EXPECT_STREQ(dialog.GetPath(), "/tmp/a.preset");
    EXPECT_THAT(ReadArguments("zenity"), Contains("--filename=/tmp/b"));
    EXPECT_TRUE(dialog.RunOpen());
    EXPECT_STREQ(dialog.GetPath(), "/tmp/a");
    EXPECT_THAT(ReadArguments("zenity"), Not(Contains("--save")));
}

TEST(CFileDialog, GivesUpWithTheUser)
{
    CNativeRunLoop loop;
    CScriptedDialogs scripted;
    CFileDialog dialog(scripted, loop);
    scripted.paths = {"/a", ""};
    EXPECT_TRUE(dialog.RunOpen());
    EXPECT_FALSE(dialog.RunOpen());
    EXPECT_STREQ(dialog.GetPath(), "");
    scripted.canShow = false;
    EXPECT_FALSE(dialog.RunSave());
    EXPECT_TRUE(scripted.requests.back().isSave);
}

TEST(CMessageBox, ShowsAPlainMessage)
{
    CNativeRunLoop loop;
    CScriptedDialogs scripted;
    CMessageBox box(scripted, loop);
    scripted.answers = {EMessageAnswer::Yes};
    box.Show("Error", "Could not load skin.", EMessageKind::Error);
    ASSERT_EQ(scripted.messages.size(), 1U);
    EXPECT_EQ(scripted.messages[0].title, "Error");
    EXPECT_EQ(scripted.messages[0].text, "Could not load skin.");
    scripted.canShow = false;
    EXPECT_EQ(box.Run({}), EMessageAnswer::Cancel);
}

} // namespace
