#include "AAXPlugin/CAAXPluginDisplayDelegate.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Support/CommaLocale.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

using MirelExt::AAXPlugin::CAAXPluginDisplayDelegate;
using namespace Mirel::DataModel::Objects;

TEST(CAAXPluginDisplayDelegate, GivesTheConvertersText)
{
    const CEnumToText modes({"Flow", "Loop", "Trigger"});
    const CAAXPluginDisplayDelegate delegate(&modes);
    AAX_CString text;
    EXPECT_TRUE(delegate.ValueToString(1.0F, &text));
    EXPECT_STREQ(text.Get(), "Loop");
}

TEST(CAAXPluginDisplayDelegate, AnswersTrueAndWritesNothingWithoutAConverterOrATarget)
{
    const CAAXPluginDisplayDelegate none(nullptr);
    AAX_CString text("kept");
    EXPECT_TRUE(none.ValueToString(1.0F, &text));
    EXPECT_STREQ(text.Get(), "kept");
    const CEnumToText modes({"Flow"});
    EXPECT_TRUE(CAAXPluginDisplayDelegate(&modes).ValueToString(0.0F, nullptr));
}

TEST(CAAXPluginDisplayDelegate, CloneHasAConverterOfItsOwn)
{
    auto modes = std::make_unique<CEnumToText>(std::vector<std::string>{"Off", "On"});
    auto delegate = std::make_unique<CAAXPluginDisplayDelegate>(modes.get());
    modes.reset();
    const std::unique_ptr<CAAXPluginDisplayDelegate> clone(delegate->Clone());
    delegate.reset();
    AAX_CString text;
    EXPECT_TRUE(clone->ValueToString(1.0F, &text));
    EXPECT_STREQ(text.Get(), "On");
    const std::unique_ptr<CAAXPluginDisplayDelegate> empty(CAAXPluginDisplayDelegate(nullptr).Clone());
    EXPECT_TRUE(empty->ValueToString(1.0F, &text));
    EXPECT_STREQ(text.Get(), "On");
}

TEST(CAAXPluginDisplayDelegate, ReadsANumberFromTheText)
{
    const Tests::CCommaLocale comma;
    const CAAXPluginDisplayDelegate delegate(nullptr);
    const struct
    {
        const char* text;
        float expected;
    } rows[] = {{"0.5", 0.5F}, {"  -12.25", -12.25F}, {"3 ms", 3.0F}, {"1e2", 100.0F}, {"0", 0.0F}};
    for (const auto& row : rows)
    {
        float value = 77.0F;
        EXPECT_TRUE(delegate.StringToValue(AAX_CString(row.text), &value)) << row.text;
        EXPECT_EQ(value, row.expected) << row.text;
    }
}

TEST(CAAXPluginDisplayDelegate, LeavesTheTargetAloneWithoutANumber)
{
    const CAAXPluginDisplayDelegate delegate(nullptr);
    for (const char* text : {"", "Loop", "-", "nan", "inf", ".", "1e999"})
    {
        float value = 77.0F;
        EXPECT_FALSE(delegate.StringToValue(AAX_CString(text), &value)) << text;
        EXPECT_EQ(value, 77.0F) << text;
    }
    EXPECT_FALSE(delegate.StringToValue(AAX_CString("1"), nullptr));
}

} // namespace
