#include "Host/CDescriptionPrinter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace
{

using namespace Host;

template <class T>
TACFReference<T> Make()
{
    return TACFReference<T>::Adopt(new T);
}

std::string Printed(const CRecordingCollection& collection)
{
    std::ostringstream out;
    CDescriptionPrinter(out).Print(collection);
    return out.str();
}

void Procedure(const AAX_InstanceRecord*, std::int32_t) {}

IACFUnknown* Create()
{
    return nullptr;
}

TEST(CDescriptionPrinter, EmptyCollectionPrintsNothing)
{
    EXPECT_EQ(Printed(*Make<CRecordingCollection>()), "");
}

TEST(CDescriptionPrinter, KeepsTheOrderOfDeclarationAtEveryLevel)
{
    const auto collection = Make<CRecordingCollection>();
    collection->SetPackageVersion(2);
    IAAXEffectDescriptor* effect = nullptr;
    ASSERT_EQ(collection->CreateEffectDescriptor(&effect), 0);
    effect->AddCreationProcedure(Create, AAX_ProcedureId::Gui);
    effect->AddCreationProcedure(Create, static_cast<AAX_ProcedureId>(9));
    IAAXComponentDescriptor* component = nullptr;
    ASSERT_EQ(effect->CreateComponentDescriptor(&component), 0);
    component->AddAudioOutput(1);
    component->AddAudioInput(0);
    component->AddMidiNode(4, static_cast<AAX_MidiNodeType>(7), "n", 3);
    IAAXPropertyMap* map = nullptr;
    ASSERT_EQ(component->CreatePropertyMap(&map), 0);
    map->SetProperty(1000, 0xFF9C0000);
    component->AddProcessProcedure(Procedure, map);
    component->AddAudioBufferLength(2);
    effect->AddComponent(component);
    effect->AddName("late");
    collection->AddEffect("first", effect);
    collection->AddEffect("second", effect);
    collection->SetManufacturerName("maker");
    map->Release();
    component->Release();
    effect->Release();

    const auto effectLines = [](const std::string& number, const std::string& identifier)
    {
        const std::string path = "effect " + number + " ";
        return path + "creation-procedure 1 gui\n" + path + "creation-procedure 9 unknown\n" + path +
               "component 0 field 1 audio-output\n" + path + "component 0 field 0 audio-input\n" + path +
               "component 0 field 4 midi-unknown name \"n\" channel-mask 3\n" + path +
               "component 0 property 1000 unknown 0xFF9C0000\n" + path + "component 0 process-procedure\n" +
               path + "component 0 field 2 audio-buffer-length\n" + path + "name \"late\"\n" + path +
               "identifier \"" + identifier + "\"\n";
    };
    EXPECT_EQ(Printed(*collection), "package version 2\n" + effectLines("0", "first") +
                                        effectLines("1", "second") + "manufacturer name \"maker\"\n");
}

TEST(CDescriptionPrinter, AnyTextStaysOnOneLine)
{
    EXPECT_EQ(Quoted("plain"), "\"plain\"");
    EXPECT_EQ(Quoted(""), "\"\"");
    EXPECT_EQ(Quoted("a\"b\\c"), "\"a\\\"b\\\\c\"");
    EXPECT_EQ(Quoted("a\nb\t\x7F\x1B"), "\"a\\x0Ab\\x09\\x7F\\x1B\"");
    EXPECT_EQ(Quoted("\xC3\xA4"), "\"\xC3\xA4\"");
}

} // namespace
