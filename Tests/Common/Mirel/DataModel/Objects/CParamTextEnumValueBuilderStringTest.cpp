#include "Mirel/DataModel/Objects/CParamTextEnumValueBuilderString.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Common/Mirel/DataModel/Objects/ValueText.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::CRangeParam;
using Tests::ValueText;

TEST(CParamTextEnumValueBuilderString, ATextBecomesTheNameOfTheParametersValue)
{
    CRangeParam param(0.0f, 10.0f);
    CParamTextEnumValueBuilderString text(&param);
    text.SetValue("Zero");
    param.SetValue(2.0f);
    text.SetValue("Two");
    EXPECT_STREQ(text.GetValue(), "Two");
    const IParamValueToText& converter = param.GetInfo().GetValueToText();
    EXPECT_EQ(ValueText(converter, 0.0f), "Zero");
    EXPECT_EQ(ValueText(converter, 1.0f), "");
    EXPECT_EQ(ValueText(converter, 2.0f), "Two");
    EXPECT_EQ(ValueText(converter, 3.0f), "Out Of Bounds");
}

TEST(CParamTextEnumValueBuilderString, TheValueIsRounded)
{
    CRangeParam param(0.0f, 10.0f, 1.4f);
    CParamTextEnumValueBuilderString text(&param);
    text.SetValue("One");
    param.SetValue(1.5f);
    text.SetValue("Two");
    EXPECT_EQ(ValueText(param.GetInfo().GetValueToText(), 1.0f), "One");
    EXPECT_EQ(ValueText(param.GetInfo().GetValueToText(), 2.0f), "Two");
}

TEST(CParamTextEnumValueBuilderString, TheNameStandsBeforeTheTextFires)
{
    CRangeParam param(0.0f, 10.0f);
    CParamTextEnumValueBuilderString text(&param);
    std::string name;
    CFunctionCommand read([&] { name = ValueText(param.GetInfo().GetValueToText(), 0.0f); });
    text.GetValueChangedEventProvider().Connect(read);
    CEventCounter infoChanges(param.GetInfo().GetChangedEventProvider());
    text.SetValue("Zero");
    EXPECT_EQ(name, "Zero");
    EXPECT_EQ(infoChanges.Take(), 1);
    text.SetValue("Zero");
    EXPECT_EQ(infoChanges.Take(), 0);
}

TEST(CParamTextEnumValueBuilderString, ValuesOutsideTheLimitsGetNoName)
{
    CRangeParam param(-10.0f, 1e9f, -4.0f);
    CParamTextEnumValueBuilderString text(&param);
    text.SetValue("Below");
    param.SetValue(static_cast<float>(maxEnumNames));
    text.SetValue("Above");
    EXPECT_STREQ(text.GetValue(), "Above");
    EXPECT_EQ(ValueText(param.GetInfo().GetValueToText(), 1.0f), "1.00");
}

TEST(CParamTextEnumValueBuilderString, TheNamesStayWhenItGoes)
{
    CRangeParam param(0.0f, 10.0f);
    auto text = std::make_unique<CParamTextEnumValueBuilderString>(&param, CStringInfo("Enum Values"));
    EXPECT_STREQ(text->GetInfo().GetName(), "Enum Values");
    text->SetValue("Zero");
    text.reset();
    EXPECT_EQ(ValueText(param.GetInfo().GetValueToText(), 0.0f), "Zero");

    // A converter that someone else has put there is left alone.
    text = std::make_unique<CParamTextEnumValueBuilderString>(&param);
    text->SetValue("Other");
    param.GetInfo().SetValueToText(nullptr, false);
    text.reset();
    EXPECT_EQ(ValueText(param.GetInfo().GetValueToText(), 0.0f), "0.00");
}

TEST(CParamTextEnumValueBuilderString, IsAPlainTextWithoutAParameter)
{
    CParamTextEnumValueBuilderString text(nullptr);
    text.SetValue("One");
    EXPECT_STREQ(text.GetValue(), "One");
}
