#include "Mirel/DataModel/Objects/CEnumToText.h"

#include "Common/Mirel/DataModel/Objects/ValueText.h"
#include "Mirel/DataModel/Objects/Limits.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::ValueText;

namespace
{

constexpr const char* outside = "Out Of Bounds";

} // namespace

TEST(CEnumToText, NamesRoundedValuesFromTheFirstValueOn)
{
    const CEnumToText names({"A", "B"}, 1.0F);

    EXPECT_EQ(ValueText(names, 1.4F), "A");
    EXPECT_EQ(ValueText(names, 2.0F), "B");
    EXPECT_EQ(ValueText(names, 3.0F), outside);
    EXPECT_EQ(ValueText(names, 0.0F), outside);
    EXPECT_EQ(ValueText(names, 1.5F), "B");
    EXPECT_EQ(ValueText(names, 0.5F), "A");
}

TEST(CEnumToText, FirstValueIsZeroUnlessGiven)
{
    const CEnumToText names({"Flow", "Loop", "Trigger"});

    EXPECT_EQ(names.GetFirstValue(), 0.0F);
    EXPECT_EQ(ValueText(names, 0.0F), "Flow");
    EXPECT_EQ(ValueText(names, 2.0F), "Trigger");
    EXPECT_EQ(ValueText(names, 3.0F), outside);
    EXPECT_EQ(ValueText(names, -1.0F), "Flow"); // -0.5 truncates to 0
    EXPECT_EQ(ValueText(names, -1.5F), outside);
}

TEST(CEnumToText, SumIsTakenInDoublePrecision)
{
    const CEnumToText names({"A", "B"});
    // The largest float below 0.5: in single precision the sum with 0.5 would round up to 1.
    EXPECT_EQ(ValueText(names, std::nextafter(0.5F, 0.0F)), "A");
    EXPECT_EQ(ValueText(CEnumToText({"A"}, 16777216.0F), 16777216.0F), "A");
}

TEST(CEnumToText, FirstValueMayBeNegative)
{
    const CEnumToText names({"A", "B"}, -2.0F);
    EXPECT_EQ(ValueText(names, -3.0F), "A"); // -2.5 truncates to -2
    EXPECT_EQ(ValueText(names, -2.0F), "B"); // -1.5 truncates to -1
    EXPECT_EQ(ValueText(names, -1.0F), outside);
}

TEST(CEnumToText, ValuesBeyondIntegersAreOutOfBounds)
{
    const CEnumToText names({"A", "B"});
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float value : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN(), 1e10F, -1e10F,
                              std::numeric_limits<float>::max()})
    {
        EXPECT_EQ(ValueText(names, value), outside) << value;
    }
    EXPECT_EQ(ValueText(CEnumToText({"A"}, std::numeric_limits<float>::quiet_NaN()), 0.0F), outside);
    EXPECT_EQ(ValueText(CEnumToText({"A"}, infinity), 0.0F), outside);
    EXPECT_EQ(ValueText(CEnumToText({"A"}, -infinity), 0.0F), outside);
}

TEST(CEnumToText, WithoutNamesEverythingIsOutOfBounds)
{
    EXPECT_EQ(ValueText(CEnumToText(), 0.0F), outside);
}

TEST(CEnumToText, EachTextIsTheCallersOwn)
{
    const CEnumToText names;
    char* first = nullptr;
    char* second = nullptr;
    names.ToText(0.0F, first);
    names.ToText(0.0F, second);
    const std::unique_ptr<char[]> firstOwner(first);
    const std::unique_ptr<char[]> secondOwner(second);

    EXPECT_NE(first, second);
    EXPECT_STREQ(first, outside);
    EXPECT_STREQ(second, outside);
}

TEST(CEnumToText, SettingANameGrowsTheListWithEmptyNames)
{
    CEnumToText names({"A"});
    CEventCounter changes(names.GetChangedEventProvider());

    EXPECT_TRUE(names.SetName(3, "D"));
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(names.GetCount(), 4);
    EXPECT_STREQ(names.GetName(0), "A");
    EXPECT_STREQ(names.GetName(1), "");
    EXPECT_STREQ(names.GetName(3), "D");
    EXPECT_STREQ(names.GetName(4), "");
    EXPECT_STREQ(names.GetName(-1), "");
    EXPECT_EQ(ValueText(names, 3.0F), "D");
    EXPECT_EQ(ValueText(names, 1.0F), "");
}

TEST(CEnumToText, SettersFireOnAChangeOnly)
{
    CEnumToText names({"A", "B"}, 1.0F);
    CEventCounter changes(names.GetChangedEventProvider());

    EXPECT_TRUE(names.SetName(0, "A"));
    names.SetNames({"A", "B"});
    names.SetFirstValue(1.0F);
    names.SetFirstValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(changes.Take(), 0);

    EXPECT_TRUE(names.SetName(0, "C"));
    EXPECT_EQ(changes.Take(), 1);
    names.SetNames({"D"});
    EXPECT_EQ(changes.Take(), 1);
    names.SetFirstValue(5.0F);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(ValueText(names, 5.0F), "D");
    EXPECT_TRUE(names.SetName(1, nullptr));
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(names.GetCount(), 2);
    EXPECT_TRUE(names.SetName(0, names.GetName(0) + 1));
    EXPECT_STREQ(names.GetName(0), "");
}

TEST(CEnumToText, NamesBeyondTheLimitAreRefused)
{
    CEnumToText names;
    CEventCounter changes(names.GetChangedEventProvider());

    EXPECT_FALSE(names.SetName(-1, "A"));
    EXPECT_FALSE(names.SetName(maxEnumNames, "A"));
    EXPECT_FALSE(names.SetName(std::numeric_limits<int>::max(), "A"));
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(names.GetCount(), 0);

    EXPECT_TRUE(names.SetName(maxEnumNames - 1, "A"));
    EXPECT_EQ(names.GetCount(), maxEnumNames);
    EXPECT_EQ(CEnumToText(std::vector<std::string>(maxEnumNames + 1)).GetCount(), maxEnumNames);
}

TEST(CEnumToText, CloneHasAllFieldsAndNoListeners)
{
    CEnumToText names({"A", "B"}, 1.0F);
    CEventCounter changes(names.GetChangedEventProvider());

    const IParamValueToText& interface = names;
    const std::unique_ptr<IParamValueToText> clone(interface.Clone());
    auto* cloned = dynamic_cast<CEnumToText*>(clone.get());
    ASSERT_NE(cloned, nullptr);

    EXPECT_EQ(ValueText(*clone, 2.0F), "B");
    cloned->SetName(1, "C");
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(ValueText(names, 2.0F), "B");
}
