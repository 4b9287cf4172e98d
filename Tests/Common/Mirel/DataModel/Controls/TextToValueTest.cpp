#include "Mirel/DataModel/Controls/TextToValue.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/DataModel/Objects/ValueToString.h"
#include "Support/CommaLocale.h"

#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <rapidcheck/gtest.h>
#include <string>

using Mirel::DataModel::Controls::TextToValue;
using Mirel::DataModel::Objects::CEnumToText;
using Mirel::DataModel::Objects::CParamInfo;
using Mirel::DataModel::Objects::CParamValueToText;
using Mirel::DataModel::Objects::IConstParamInfo;
using Mirel::DataModel::Objects::ValueToString;
using Tests::Integer;
using Tests::Real;

namespace
{

std::optional<float> Read(const IConstParamInfo& info, const char* text)
{
    float value = -77.0F;
    if (TextToValue(info, text, value))
    {
        return value;
    }
    EXPECT_EQ(value, -77.0F) << text;
    return std::nullopt;
}

CParamInfo WithUnit(const char* unit)
{
    return {2, -1e9F, 1e9F, 0.0F, "", unit, ""};
}

} // namespace

TEST(TextToValue, ReadsPlainNumbers)
{
    const struct
    {
        const char* text;
        float value;
    } rows[] = {{"2.5", 2.5F}, {"-2.5", -2.5F},  {"+2.5", 2.5F}, {"  7\t", 7.0F},
                {".5", 0.5F},  {"1e3", 1000.0F}, {"0", 0.0F},    {"1E-2", 0.01F}};
    const CParamInfo info = Real(-10.0F, 10.0F);
    for (const auto& row : rows)
    {
        EXPECT_EQ(Read(info, row.text), row.value) << row.text;
    }
}

TEST(TextToValue, RefusesWhatIsNoNumber)
{
    const CParamInfo info = WithUnit("Hz");
    for (const char* text : {"", " ", "Hz", "k", "+", "-", "+-1", ".", "inf", "nan", "-infinity", "1e999",
                             "2,5", "1 2", "5 HzHz", "5 kk", "5 q", "0x10", "five"})
    {
        EXPECT_EQ(Read(info, text), std::nullopt) << text;
    }
}

TEST(TextToValue, ReadsTheSameInEveryLocale)
{
    const Tests::CCommaLocale locale;
    const CParamInfo info = Real(-10.0F, 10.0F);
    EXPECT_EQ(Read(info, "2.5"), 2.5F);
    EXPECT_EQ(Read(info, "2,5"), std::nullopt);
}

TEST(TextToValue, ReadsPrefixAndUnit)
{
    const struct
    {
        const char* unit;
        const char* text;
        float value;
    } rows[] = {{"Hz", "440Hz", 440.0F},   {"Hz", "440 Hz", 440.0F},   {"Hz", "440 hz", 440.0F},
                {"Hz", "1.5k", 1500.0F},   {"Hz", "1.5 kHz", 1500.0F}, {"Hz", "1.5 k Hz", 1500.0F},
                {"Hz", "1.5KHz", 1500.0F}, {"Hz", "2MHz", 2e6F},       {"Hz", "2 G", 2e9F},
                {"Hz", "2T", 2e12F},       {"s", "5 ms", 0.005F},      {"s", "5m", 0.005F},
                {"s", "5 \u00B5s", 5e-6F}, {"s", "5 \u03BCs", 5e-6F},  {"s", "5us", 5e-6F},
                {"s", "5ns", 5e-9F},       {"s", "5ps", 5e-9F},        {"m", "5 m", 5.0F},
                {"m", "5 mm", 0.005F},     {"%", "50%", 50.0F},        {" dB ", "-6 dB", -6.0F},
                {nullptr, "3k", 3000.0F}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(Read(WithUnit(row.unit), row.text), row.value) << row.text;
    }
}

TEST(TextToValue, ReadsWhatTheConverterPrintsAfterANumber)
{
    CParamInfo info = Real(-100.0F, 100000.0F);
    const CParamValueToText suffix("%.0f dB", false, "{value} FS");
    info.SetValueToText(suffix.Clone(), true);
    EXPECT_EQ(Read(info, "-6 dB FS"), -6.0F);
    EXPECT_EQ(Read(info, "12.5 dB FS"), 12.5F);
    EXPECT_EQ(Read(info, "12.5"), 12.5F);
    EXPECT_EQ(Read(info, "12.5 dBFS"), std::nullopt);

    const CParamValueToText metric("%.1f", true, "{value}Hz");
    info.SetValueToText(metric.Clone(), true);
    EXPECT_EQ(Read(info, "1.5kHz"), 1500.0F);
    EXPECT_EQ(Read(info, "20Hz"), 20.0F);
}

TEST(TextToValue, ReadsTheNamesOfAnEnumeration)
{
    CParamInfo info = Integer(1.0F, 3.0F);
    CEnumToText names({"Flow", "Loop", "Trigger"}, 1.0F);
    info.SetValueToText(&names, false);

    EXPECT_EQ(Read(info, "Flow"), 1.0F);
    EXPECT_EQ(Read(info, " Trigger "), 3.0F);
    EXPECT_EQ(Read(info, "2"), 2.0F);
    EXPECT_EQ(Read(info, "Stop"), std::nullopt);
    EXPECT_EQ(Read(info, ""), std::nullopt);

    CParamInfo real = info;
    real.SetType(2);
    EXPECT_EQ(Read(real, "Flow"), std::nullopt);
}

TEST(TextToValue, NameThatIsANumberStandsForItsValue)
{
    CParamInfo info = Integer(0.0F, 3.0F);
    CEnumToText names({"1", "2", "4", "8"});
    info.SetValueToText(&names, false);

    EXPECT_EQ(Read(info, "4"), 2.0F);
    EXPECT_EQ(Read(info, "1"), 0.0F);
    EXPECT_EQ(Read(info, "3"), 3.0F); // no name
}

TEST(TextToValue, TextOfSeveralRoundedValuesMeansTheNumber)
{
    CParamInfo info = Integer(0.0F, 200.0F);
    CParamValueToText rounded("%.0f", false, "{value}");
    rounded.SetSignificantDigits(1);
    info.SetValueToText(&rounded, false);

    EXPECT_EQ(ValueToString(rounded, 95.0F), "100");
    EXPECT_EQ(Read(info, "100"), 100.0F);
    EXPECT_EQ(Read(info, "96"), 96.0F);
}

TEST(TextToValue, ValueIsOfTheKind)
{
    EXPECT_EQ(Read(Integer(-9.0F, 9.0F), "2.5"), 3.0F);
    EXPECT_EQ(Read(Integer(-9.0F, 9.0F), "-2.5"), -3.0F);
    EXPECT_EQ(Read(Integer(-9.0F, 9.0F), "1e12"), 1e12F);
    for (const int kind : {0, 3})
    {
        EXPECT_EQ(Read(Tests::TwoState(kind, 0.0F, 1.0F), "0.7"), 1.0F);
        EXPECT_EQ(Read(Tests::TwoState(kind, 0.0F, 1.0F), "0.3"), 0.0F);
        EXPECT_EQ(Read(Tests::TwoState(kind, 4.0F, 6.0F), "4"), 4.0F);
    }
}

TEST(TextToValue, HugeRangesAreNotSearchedToTheEnd)
{
    EXPECT_EQ(Read(Integer(0.0F, 1e9F), "none"), std::nullopt);
    EXPECT_EQ(Read(Integer(1e9F, 2e9F), "none"), std::nullopt);
    EXPECT_EQ(Read(Integer(0.0F, 1e9F), "123456"), 123456.0F);
}

RC_GTEST_PROP(TextToValue, PrintedTextsReadBackToWhatTheyShow, ())
{
    const auto power = static_cast<float>(*rc::gen::inRange(-40, 50)) * 0.1F;
    const float value = (*rc::gen::arbitrary<bool>() ? 1.0F : -1.0F) * std::pow(10.0F, power);
    const bool metric = *rc::gen::arbitrary<bool>();
    const char* pattern = *rc::gen::element("{value}", "{value} Hz", "{value}Hz", "{value} of it");
    CParamInfo info(2, -1e9F, 1e9F, 0.0F, "", "Hz", "");
    info.SetValueToText(new CParamValueToText("%.4f", metric, pattern), true);
    const std::string text = ValueToString(info.GetValueToText(), value);

    float back = 0.0F;
    RC_LOG() << text;
    RC_ASSERT(TextToValue(info, text, back));

    // Four decimals of a number of at least 1 when scaled, or of the plain number.
    const double precision = std::max(0.5e-4 * std::max(1.0, std::abs(static_cast<double>(value))), 0.5e-4) +
                             1e-6 * std::abs(static_cast<double>(value));
    RC_ASSERT(std::abs(static_cast<double>(back) - static_cast<double>(value)) <= precision);
}
