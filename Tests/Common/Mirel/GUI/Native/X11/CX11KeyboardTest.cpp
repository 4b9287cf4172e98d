#include "Common/Mirel/GUI/Native/X11/CX11Test.h"
#include "Mirel/GUI/Native/X11/X11Keys.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon-keysyms.h>

using Mirel::GUI::ENativeKey;
using Mirel::GUI::ENativeWindowKind;
using Mirel::GUI::INativeWindow;
using Mirel::GUI::SNativeKeyEvent;
using testing::ElementsAre;
using Tests::CRecordingSink;
namespace ModifierFlags = Mirel::GUI::ModifierFlags;

namespace
{

/// Where the keys lie on every PC keyboard, named after what they type in the United States.
namespace Codes
{
constexpr int escape = 9;
constexpr int equal = 21; // the dead acute of Germany
constexpr int tab = 23;
constexpr int q = 24;
constexpr int e = 26;
constexpr int y = 29;
constexpr int enter = 36;
constexpr int control = 37;
constexpr int a = 38;
constexpr int c = 54;
constexpr int shift = 50;
constexpr int rightShift = 62;
constexpr int alternate = 64;
constexpr int space = 65;
constexpr int capsLock = 66;
constexpr int f1 = 67;
constexpr int keypadFour = 83;
constexpr int keypadEnter = 104;
constexpr int rightAlternate = 108;
constexpr int left = 113;
} // namespace Codes

class CX11KeyboardTest : public Tests::CX11Test
{
public:
    void SetUp() override
    {
        CX11Test::SetUp();
        if (platform != nullptr)
        {
            SetLayout("us");
            window = Open(Options(ENativeWindowKind::TopLevel, {100, 100, 50, 50}), sink, 0x102030);
        }
    }

    /// As the desktop does when the user chooses another.
    static void SetLayout(const std::string& layout)
    {
        std::string program = "setxkbmap";
        std::string option = "-display";
        std::string name = display->GetName();
        std::string layoutOption = "-layout";
        std::string chosen = layout;
        char* arguments[] = {program.data(),      option.data(), name.data(),
                             layoutOption.data(), chosen.data(), nullptr};
        pid_t child = -1;
        ASSERT_EQ(posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ), 0);
        int status = -1;
        waitpid(child, &status, 0);
        ASSERT_EQ(status, 0);
    }

    /// What the press of the key tells.
    SNativeKeyEvent Type(int code)
    {
        Settle();
        sink.Clear();
        probe->Type(code);
        Settle();
        return sink.keys.empty() ? SNativeKeyEvent() : sink.keys.front();
    }

    CRecordingSink sink;
    std::unique_ptr<INativeWindow> window;
};

TEST_F(CX11KeyboardTest, KeyTypesItsCharacter)
{
    const SNativeKeyEvent event = Type(Codes::a);
    EXPECT_THAT(sink.log, ElementsAre("key down", "key up"));
    EXPECT_EQ(event.key, ENativeKey::Character);
    EXPECT_EQ(event.text, "a");
    EXPECT_EQ(event.character, U'a');
    EXPECT_EQ(event.keyCode, static_cast<std::uint32_t>(Codes::a));
    EXPECT_EQ(event.modifiers, 0U);
    EXPECT_FALSE(event.repeat);
    EXPECT_EQ(event.count, 1);
    EXPECT_EQ(sink.keys[1].text, "") << "releases type nothing";
    EXPECT_EQ(sink.keys[1].character, U'a');
}

TEST_F(CX11KeyboardTest, ShiftTypesCapitals)
{
    probe->KeyDown(Codes::shift);
    const SNativeKeyEvent event = Type(Codes::a);
    probe->KeyUp(Codes::shift);
    EXPECT_EQ(event.text, "A");
    EXPECT_EQ(event.character, U'A');
    EXPECT_EQ(event.modifiers, ModifierFlags::shift);
}

TEST_F(CX11KeyboardTest, CapsLockTypesCapitals)
{
    probe->Type(Codes::capsLock);
    const SNativeKeyEvent event = Type(Codes::a);
    probe->Type(Codes::capsLock);
    EXPECT_EQ(event.text, "A");
    EXPECT_EQ(event.modifiers, ModifierFlags::capsLock);
}

TEST_F(CX11KeyboardTest, ModifierKeysTellTheStateAfterThem)
{
    probe->KeyDown(Codes::shift);
    probe->KeyDown(Codes::rightShift);
    probe->KeyUp(Codes::shift);
    probe->KeyUp(Codes::rightShift);
    probe->Type(Codes::control);
    probe->Type(Codes::alternate);
    Settle();
    ASSERT_EQ(sink.keys.size(), 8U);
    const std::uint32_t shift = ModifierFlags::shift;
    const std::uint32_t expected[] = {
        shift, shift, shift, 0, ModifierFlags::control, 0, ModifierFlags::alternate, 0};
    for (std::size_t i = 0; i < 8; ++i)
    {
        EXPECT_EQ(sink.keys[i].key, ENativeKey::Modifier) << i;
        EXPECT_EQ(sink.keys[i].modifiers, expected[i]) << i;
        EXPECT_EQ(sink.keys[i].text, "") << i;
    }
}

TEST_F(CX11KeyboardTest, ShortcutsTypeNothingButTellTheirLetter)
{
    for (const auto& [code, flag] : {std::pair(Codes::control, ModifierFlags::control),
                                     std::pair(Codes::alternate, ModifierFlags::alternate)})
    {
        probe->KeyDown(code);
        const SNativeKeyEvent event = Type(Codes::c);
        probe->KeyUp(code);
        EXPECT_EQ(event.text, "");
        EXPECT_EQ(event.character, U'c');
        EXPECT_EQ(event.modifiers, flag);
    }
}

TEST_F(CX11KeyboardTest, ShortcutsAreLatinOnOtherAlphabets)
{
    SetLayout("ru,us");
    EXPECT_EQ(Type(Codes::c).text, "с") << "the Cyrillic letter";
    probe->KeyDown(Codes::control);
    const SNativeKeyEvent event = Type(Codes::c);
    probe->KeyUp(Codes::control);
    EXPECT_EQ(event.character, U'c');
}

TEST_F(CX11KeyboardTest, NamedKeysTypeNothing)
{
    const std::pair<int, ENativeKey> codes[] = {
        {Codes::escape, ENativeKey::Escape},  {Codes::tab, ENativeKey::Tab},
        {Codes::enter, ENativeKey::Return},   {Codes::keypadEnter, ENativeKey::Return},
        {Codes::left, ENativeKey::Left},      {Codes::f1, ENativeKey::F1},
        {Codes::keypadFour, ENativeKey::Left}};
    for (const auto& [code, key] : codes)
    {
        const SNativeKeyEvent event = Type(code);
        EXPECT_EQ(event.key, key) << code;
        EXPECT_EQ(event.text, "") << code;
        EXPECT_EQ(event.character, U'\0') << code;
    }
    EXPECT_EQ(Type(Codes::space).text, " ");
}

TEST_F(CX11KeyboardTest, HeldKeyRepeatsAsPresses)
{
    probe->KeyDown(Codes::a);
    ASSERT_TRUE(PumpUntil(sink, "key down", 3));
    probe->KeyUp(Codes::a);
    Settle();
    EXPECT_FALSE(sink.keys[0].repeat);
    EXPECT_TRUE(sink.keys[1].repeat);
    EXPECT_EQ(sink.keys[1].text, "a");
    EXPECT_EQ(sink.Count("key up"), 1);
    EXPECT_FALSE(Type(Codes::a).repeat);
}

TEST_F(CX11KeyboardTest, LayoutMayChangeMeanwhile)
{
    EXPECT_EQ(Type(Codes::y).text, "y");
    SetLayout("de");
    EXPECT_EQ(Type(Codes::y).text, "z");
    probe->KeyDown(Codes::rightAlternate);
    EXPECT_EQ(Type(Codes::q).text, "@");
    probe->KeyUp(Codes::rightAlternate);
    SetLayout("us");
    EXPECT_EQ(Type(Codes::y).text, "y");
}

TEST_F(CX11KeyboardTest, DeadKeysCompose)
{
    SetLayout("de");
    const SNativeKeyEvent dead = Type(Codes::equal);
    EXPECT_EQ(dead.text, "");
    EXPECT_EQ(dead.character, U'\0');
    const SNativeKeyEvent composed = Type(Codes::e);
    EXPECT_EQ(composed.text, "é");
    EXPECT_EQ(composed.character, U'\0') << "the e by itself was not meant";
    EXPECT_EQ(Type(Codes::e).text, "e");
}

TEST_F(CX11KeyboardTest, SequenceThatDoesNotExistTypesNothing)
{
    SetLayout("de");
    Type(Codes::equal);
    EXPECT_EQ(Type(Codes::q).text, "");
    EXPECT_EQ(Type(Codes::q).text, "q");
}

TEST_F(CX11KeyboardTest, LosingTheFocusDropsASequence)
{
    SetLayout("de");
    Type(Codes::equal);
    probe->Focus(probe->ShowWindow(500, 500, 10, 10));
    ASSERT_TRUE(PumpUntil(sink, "focus out"));
    window->SetFocus();
    ASSERT_TRUE(PumpUntil(sink, "focus in"));
    EXPECT_EQ(Type(Codes::e).text, "e");
}

TEST(X11Keys, SymbolsHaveTheirMeaning)
{
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_F12), ENativeKey::F12);
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_KP_Page_Down), ENativeKey::PageDown);
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_ISO_Left_Tab), ENativeKey::Tab);
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_ISO_Level3_Shift), ENativeKey::Modifier);
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_Num_Lock), ENativeKey::Modifier);
    EXPECT_EQ(Mirel::GUI::KeyOfSymbol(XKB_KEY_d), ENativeKey::Character);
    EXPECT_EQ(Mirel::GUI::ModifierOfSymbol(XKB_KEY_Super_R), ModifierFlags::command);
    EXPECT_EQ(Mirel::GUI::ModifierOfSymbol(XKB_KEY_Caps_Lock), 0U);
    EXPECT_TRUE(Mirel::GUI::BeginsSequence(XKB_KEY_Multi_key));
    EXPECT_TRUE(Mirel::GUI::BeginsSequence(XKB_KEY_dead_acute));
    EXPECT_FALSE(Mirel::GUI::BeginsSequence(XKB_KEY_e));
}

} // namespace
