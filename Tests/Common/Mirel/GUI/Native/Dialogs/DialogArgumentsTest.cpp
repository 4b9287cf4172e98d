#include "Mirel/GUI/Native/Dialogs/DialogArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

using Mirel::GUI::AddExtension;
using Mirel::GUI::AnswerOf;
using Mirel::GUI::EDialogHelper;
using Mirel::GUI::EMessageAnswer;
using Mirel::GUI::EMessageButtons;
using Mirel::GUI::EMessageKind;
using Mirel::GUI::FileArguments;
using Mirel::GUI::MessageArguments;
using Mirel::GUI::PathOf;
using Mirel::GUI::SFileRequest;
using Mirel::GUI::SMessage;
using testing::ElementsAre;

namespace
{

TEST(DialogArguments, ZenityShowsAMessageWithoutMarkup)
{
    const SMessage message{"Error", "a <b> & $(c)\n`d`", EMessageKind::Error, EMessageButtons::Ok};
    EXPECT_THAT(MessageArguments(EDialogHelper::Zenity, "/z", message, 0),
                ElementsAre("/z", "--error", "--no-markup", "--title=Error", "--text=a <b> & $(c)\n`d`"));
}

TEST(DialogArguments, ZenityShowsBackslashesAsTheyAre)
{
    const SMessage message{"", "a\\nb", EMessageKind::Information, EMessageButtons::Ok};
    EXPECT_THAT(MessageArguments(EDialogHelper::Zenity, "/z", message, 0),
                ElementsAre("/z", "--info", "--no-markup", "--title=", "--text=a\\\\nb"));
}

TEST(DialogArguments, ZenityAsksQuestions)
{
    SMessage message{"T", "x", EMessageKind::Warning, EMessageButtons::YesNoCancel};
    EXPECT_THAT(MessageArguments(EDialogHelper::Zenity, "/z", message, 77),
                ElementsAre("/z", "--attach=77", "--modal", "--question", "--no-markup", "--title=T",
                            "--text=x", "--ok-label=Yes", "--cancel-label=No", "--extra-button=Cancel"));
    message.buttons = EMessageButtons::OkCancel;
    EXPECT_THAT(MessageArguments(EDialogHelper::Zenity, "/z", message, 0),
                ElementsAre("/z", "--question", "--no-markup", "--title=T", "--text=x", "--ok-label=OK",
                            "--cancel-label=Cancel"));
}

TEST(DialogArguments, KDialogShowsTextAsItIs)
{
    const SMessage message{"T", "a <b> &\n\\n", EMessageKind::Warning, EMessageButtons::Ok};
    EXPECT_THAT(
        MessageArguments(EDialogHelper::KDialog, "/k", message, 77),
        ElementsAre("/k", "--attach=77", "--title=T", "--sorry=<qt>a &lt;b&gt; &amp;<br/>\\\\n</qt>"));
}

TEST(DialogArguments, KDialogHasAnOptionForEachKind)
{
    const auto optionOf = [](EMessageKind kind, EMessageButtons buttons)
    {
        const SMessage message{"T", "x", kind, buttons};
        const std::string last = MessageArguments(EDialogHelper::KDialog, "/k", message, 0).back();
        return last.substr(0, last.find('='));
    };
    EXPECT_EQ(optionOf(EMessageKind::Information, EMessageButtons::Ok), "--msgbox");
    EXPECT_EQ(optionOf(EMessageKind::Error, EMessageButtons::Ok), "--error");
    EXPECT_EQ(optionOf(EMessageKind::Information, EMessageButtons::YesNo), "--yesno");
    EXPECT_EQ(optionOf(EMessageKind::Warning, EMessageButtons::YesNo), "--warningyesno");
    EXPECT_EQ(optionOf(EMessageKind::Information, EMessageButtons::YesNoCancel), "--yesnocancel");
    EXPECT_EQ(optionOf(EMessageKind::Error, EMessageButtons::YesNoCancel), "--warningyesnocancel");
    EXPECT_EQ(optionOf(EMessageKind::Warning, EMessageButtons::OkCancel), "--warningcontinuecancel");
}

TEST(DialogArguments, LongTextIsCutBetweenCharacters)
{
    SMessage message;
    message.text = "x";
    while (message.text.size() < 200000)
    {
        message.text += "é";
    }
    const std::string shown = MessageArguments(EDialogHelper::Zenity, "/z", message, 0)[4];
    EXPECT_LT(shown.size(), 5000U);
    EXPECT_EQ(shown.substr(shown.size() - 6), "é\n...");
}

TEST(DialogArguments, ZenityAsksForAFile)
{
    SFileRequest request;
    request.title = "Load Preset";
    request.folder = "/home/me/My Presets";
    request.filters = {{"Presets Files (*.preset)", {"*.preset"}}, {"All | more", {"*", "*.*"}}};
    EXPECT_THAT(
        FileArguments(EDialogHelper::Zenity, "/z", request, 0),
        ElementsAre("/z", "--title=Load Preset", "--file-selection", "--filename=/home/me/My Presets/",
                    "--file-filter=Presets Files (*.preset) | *.preset", "--file-filter=All   more | * *.*"));
    request.isSave = true;
    request.fileName = "new";
    request.filters.clear();
    EXPECT_THAT(FileArguments(EDialogHelper::Zenity, "/z", request, 5),
                ElementsAre("/z", "--attach=5", "--modal", "--title=Load Preset", "--file-selection",
                            "--save", "--confirm-overwrite", "--filename=/home/me/My Presets/new"));
}

TEST(DialogArguments, KDialogAsksForAFile)
{
    SFileRequest request;
    request.title = "T";
    request.filters = {{"Skins", {"*.xml"}}, {"All", {"*"}}};
    EXPECT_THAT(FileArguments(EDialogHelper::KDialog, "/k", request, 0),
                ElementsAre("/k", "--title=T", "--getopenfilename", ".", "*.xml|Skins\n*|All"));
    request.isSave = true;
    request.folder = "/a/";
    request.filters.clear();
    EXPECT_THAT(FileArguments(EDialogHelper::KDialog, "/k", request, 0),
                ElementsAre("/k", "--title=T", "--getsavefilename", "/a/"));
}

TEST(DialogArguments, AnswersFollowTheExitCode)
{
    struct SCase
    {
        EDialogHelper helper;
        EMessageButtons buttons;
        int code;
        const char* output;
        EMessageAnswer answer;
    };
    const EDialogHelper zenity = EDialogHelper::Zenity;
    const EDialogHelper kdialog = EDialogHelper::KDialog;
    const SCase cases[] = {
        {zenity, EMessageButtons::Ok, 1, "", EMessageAnswer::Yes},
        {zenity, EMessageButtons::OkCancel, 0, "", EMessageAnswer::Yes},
        {zenity, EMessageButtons::OkCancel, 1, "", EMessageAnswer::Cancel},
        {zenity, EMessageButtons::YesNo, 0, "", EMessageAnswer::Yes},
        {zenity, EMessageButtons::YesNo, 1, "", EMessageAnswer::No},
        {zenity, EMessageButtons::YesNo, -1, "", EMessageAnswer::No},
        {zenity, EMessageButtons::YesNoCancel, 1, "", EMessageAnswer::No},
        {zenity, EMessageButtons::YesNoCancel, 1, "Cancel\n", EMessageAnswer::Cancel},
        {zenity, EMessageButtons::YesNoCancel, -1, "", EMessageAnswer::Cancel},
        {kdialog, EMessageButtons::YesNoCancel, 1, "", EMessageAnswer::No},
        {kdialog, EMessageButtons::YesNoCancel, 2, "", EMessageAnswer::Cancel},
        {kdialog, EMessageButtons::OkCancel, 2, "", EMessageAnswer::Cancel},
    };
    for (const SCase& entry : cases)
    {
        EXPECT_EQ(AnswerOf(entry.helper, entry.buttons, entry.code, entry.output), entry.answer)
            << static_cast<int>(entry.buttons) << " " << entry.code << " " << entry.output;
    }
}

TEST(DialogArguments, PathIsTheOutputWithoutItsNewline)
{
    EXPECT_EQ(PathOf(0, "/a/b c\n"), "/a/b c");
    EXPECT_EQ(PathOf(0, "/a\nb\n"), "/a\nb") << "a name may hold a newline";
    EXPECT_EQ(PathOf(0, ""), "");
    EXPECT_EQ(PathOf(1, "/a\n"), "") << "the user gave up";
    EXPECT_EQ(PathOf(-1, "/a\n"), "/a") << "the host took the exit code";
}

TEST(DialogArguments, ExtensionIsAddedToNamesWithoutOne)
{
    EXPECT_EQ(AddExtension("/a/b", "preset"), "/a/b.preset");
    EXPECT_EQ(AddExtension("/a.d/b", "preset"), "/a.d/b.preset");
    EXPECT_EQ(AddExtension("/a/b.txt", "preset"), "/a/b.txt");
    EXPECT_EQ(AddExtension("/a/.b", "preset"), "/a/.b.preset");
    EXPECT_EQ(AddExtension("b", "preset"), "b.preset");
    EXPECT_EQ(AddExtension("/a/b", ""), "/a/b");
    EXPECT_EQ(AddExtension("", "preset"), "");
    EXPECT_EQ(AddExtension("/a/", "preset"), "/a/");
}

} // namespace
