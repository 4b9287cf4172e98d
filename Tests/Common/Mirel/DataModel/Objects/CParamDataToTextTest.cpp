#include "Mirel/DataModel/Objects/CParamDataToText.h"

#include "Common/Mirel/DataModel/Objects/ValueText.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::ValueText;

namespace
{

CParamInfo Frequency()
{
    return {2, 20.0F, 20000.0F, 440.0F, "Pitch", "Hz", "The tone's pitch"};
}

std::string Text(const char* pattern, float value = 1.5F)
{
    return ValueText(CParamDataToText("%.1f", false, pattern, Frequency()), value);
}

} // namespace

TEST(CParamDataToText, PlaceholdersNameThePartsOfTheDescription)
{
    const struct
    {
        const char* pattern;
        const char* text;
    } cases[] = {
        {"{value}", "1.5"},     {"{unit}", "Hz"},
        {"{min}", "20.0"},      {"{max}", "20000.0"},
        {"{default}", "440.0"}, {"{comment}", "The tone's pitch"},
        {"{name}", "Pitch"},    {"{text_value}", "1.50"},
        {"{other}", "{other}"}, {"{Name}", "{Name}"},
        {"{}", "{}"},           {"{name}: {value} {unit} ({min}..{max})", "Pitch: 1.5 Hz (20.0..20000.0)"},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(Text(each.pattern), each.text) << each.pattern;
    }
}

TEST(CParamDataToText, TextValueAndUnitShowAValueWithItsUnit)
{
    EXPECT_EQ(Text("{text_value} {unit}", 440.0F), "440.00 Hz");
}

TEST(CParamDataToText, TextValueComesFromTheDescriptionsOwnConverter)
{
    CEnumToText names({"Up", "Down"});
    CParamInfo info = Frequency();
    info.SetValueToText(&names, false);
    const CParamDataToText converter("%.1f", false, "{value} is {text_value}", info);

    EXPECT_EQ(ValueText(converter, 1.0F), "1.0 is Down");
}

TEST(CParamDataToText, NumbersOfTheDescriptionArePrintedLikeTheValue)
{
    CParamDataToText converter("%.1f", true, "{min} {max} {default} {value}", Frequency());
    EXPECT_EQ(ValueText(converter, 1500.0F), "20.0 20.0k 440.0 1.5k");

    converter.SetSignificantDigits(1);
    EXPECT_EQ(ValueText(converter, 1500.0F), "20.0 20.0k 400.0 2.0k");
}

TEST(CParamDataToText, NullTextsOfTheDescriptionAreEmpty)
{
    const CParamInfo info(2, 0.0F, 1.0F, 0.0F, nullptr, nullptr, nullptr);
    const CParamDataToText converter("%.1f", false, "[{unit}{name}{comment}]", info);

    EXPECT_EQ(ValueText(converter, 0.0F), "[]");
}

TEST(CParamDataToText, BeginsWithTheEmptyDescription)
{
    const CParamDataToText converter("%.1f", false,
                                     "[{name}{unit}{comment}] {min} {max} {default} {text_value}");

    EXPECT_EQ(converter.GetParamInfo().GetType(), 2);
    EXPECT_EQ(ValueText(converter, 1.0F), "[] 0.0 0.0 0.0 1.00");
}

TEST(CParamDataToText, HoldsACopyOfTheDescription)
{
    auto info = std::make_unique<CParamInfo>(Frequency());
    const CParamDataToText converter("%.1f", false, "{text_value} {unit}", *info);
    info->SetUnit("s");
    info.reset();

    EXPECT_EQ(ValueText(converter, 1.0F), "1.00 Hz");
}

TEST(CParamDataToText, NewDescriptionFires)
{
    CParamDataToText converter("%.1f", false, "{unit}");
    CEventCounter changes(converter.GetChangedEventProvider());

    converter.SetParamInfo(Frequency());

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(ValueText(converter, 1.0F), "Hz");
}

TEST(CParamDataToText, CloneHasAllFieldsAndNoListeners)
{
    CParamDataToText converter("%.1f", false, "{value} {unit}", Frequency());
    CEventCounter changes(converter.GetChangedEventProvider());

    const IParamValueToText& interface = converter;
    const std::unique_ptr<IParamValueToText> clone(interface.Clone());
    auto* cloned = dynamic_cast<CParamDataToText*>(clone.get());
    ASSERT_NE(cloned, nullptr);

    EXPECT_EQ(ValueText(*clone, 1.0F), "1.0 Hz");
    cloned->SetParamInfo(CParamInfo());
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(ValueText(converter, 1.0F), "1.0 Hz");
}

TEST(CParamDataToText, ServesAsTheConverterOfTheDescriptionItWasMadeFrom)
{
    CParamInfo info = Frequency();
    info.SetValueToText(new CParamDataToText("%.0f", false, "{text_value} {unit}", info), true);
    const CParamInfo copy(info);

    EXPECT_EQ(ValueText(copy.GetValueToText(), 440.0F), "440.00 Hz");
}
