#include "AAXPlugin/CPlayedEditor.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

namespace
{

using namespace Host;
using namespace Tests;

constexpr int block = 480;

void SendController(CHostInstance& instance, std::uint8_t number)
{
    CChannels inputs(2, block);
    CChannels outputs(2, block);
    EXPECT_TRUE(instance.GetMidiInput()->Add(MakeMidiEvent(0, 0xB0, number, 64)));
    instance.Process(inputs.Get(), outputs.Get(), block);
}

float ReadLamp(const CPlayedEditor& editor)
{
    using Mirel::DataModel::Objects::IConstCaptureParam;
    const auto* object = editor.GetGui().GetSkinWindow()->GetObjectsDictionary().Find("midi.lamp");
    const auto* param =
        object == nullptr ? nullptr : Mirel::SkinEngine::FindInterface<IConstCaptureParam>(*object);
    EXPECT_NE(param, nullptr);
    return param == nullptr ? -1.0F : param->GetValue();
}

/// Within five seconds.
bool WaitFor(CPlayedEditor& editor, const std::function<bool(float)>& isRight)
{
    constexpr int patience = 500;
    for (int i = 0; i < patience && !isRight(ReadLamp(editor)); ++i)
    {
        editor.Get().WakeFor(10);
    }
    return isRight(ReadLamp(editor));
}

bool IsOut(float light)
{
    return light == 0.0F;
}

bool IsLit(float light)
{
    return light > 0.0F;
}

class MidiLamp : public testing::Test
{
protected:
    void SetUp() override
    {
        instance = plugin.Make();
        UsePlayedPopups(*instance, dialogs);
    }

    void Open()
    {
        editor.emplace(*instance);
        folder.Write("skin.xml", "<SKIN><PARAM_TEXT param_id=\"midi.lamp\"/></SKIN>");
        ASSERT_TRUE(editor->Get().LoadSkin(folder.GetPath("skin.xml"))) << editor->Get().GetSkinMessages();
        editor->Get().WakeFor(200);
    }

    void TearDown() override { editor.reset(); }

    CTemporaryFolder folder;
    CScriptedDialogs dialogs;
    CInProcessPlugin plugin;
    std::unique_ptr<CHostInstance> instance;
    std::optional<CPlayedEditor> editor;
};

TEST_F(MidiLamp, LightsWithEachMessageAndGoesOut)
{
    Open();
    for (const std::uint8_t number : {std::uint8_t{20}, std::uint8_t{21}})
    {
        SendController(*instance, number);
        EXPECT_TRUE(WaitFor(*editor, &IsLit));
        EXPECT_TRUE(WaitFor(*editor, &IsOut));
    }
}

TEST_F(MidiLamp, GoesOutAfterAnEditorThatClosedWhileItWasLit)
{
    Open();
    SendController(*instance, 20);
    EXPECT_TRUE(WaitFor(*editor, &IsLit));
    editor.reset();
    Open();
    EXPECT_TRUE(WaitFor(*editor, &IsOut));
    SendController(*instance, 21);
    EXPECT_TRUE(WaitFor(*editor, &IsLit));
    EXPECT_TRUE(WaitFor(*editor, &IsOut));
}

TEST_F(MidiLamp, GoesOutAfterManyMessages)
{
    Open();
    for (int i = 0; i < 100; ++i)
    {
        SendController(*instance, static_cast<std::uint8_t>(1 + i % 90));
        editor->Get().WakeFor(3 + i % 5);
    }
    EXPECT_TRUE(WaitFor(*editor, &IsOut));
}

} // namespace
