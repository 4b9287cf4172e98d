#include "Mirel/DataModel/Objects/MetricPrefix.h"

#include <gtest/gtest.h>
#include <string_view>

using Mirel::DataModel::Objects::MetricPrefixOf;
using Mirel::DataModel::Objects::TakeMetricPrefix;

TEST(MetricPrefix, EachPowerOfAThousandHasItsPrefix)
{
    const struct
    {
        int thousands;
        const char* text;
    } rows[] = {{-3, "p"}, {-2, "\u00B5"}, {-1, "m"}, {1, "k"}, {2, "M"}, {3, "G"}, {4, "T"}};
    for (const auto& row : rows)
    {
        EXPECT_STREQ(MetricPrefixOf(row.thousands), row.text);
        std::string_view text = row.text;
        int thousands = 0;
        EXPECT_TRUE(TakeMetricPrefix(text, thousands));
        EXPECT_EQ(thousands, row.thousands);
        EXPECT_TRUE(text.empty());
    }
    for (const int none : {0, -4, 5, 100})
    {
        EXPECT_EQ(MetricPrefixOf(none), nullptr);
    }
}

TEST(MetricPrefix, OtherSpellingsAreReadAsWell)
{
    const struct
    {
        const char* text;
        int thousands;
    } rows[] = {{"n", -3}, {"u", -2}, {"\u03BC", -2}, {"K", 1}};
    for (const auto& row : rows)
    {
        std::string_view text = row.text;
        int thousands = 0;
        EXPECT_TRUE(TakeMetricPrefix(text, thousands)) << row.text;
        EXPECT_EQ(thousands, row.thousands) << row.text;
        EXPECT_TRUE(text.empty());
    }
}

TEST(MetricPrefix, OnlyTheFrontIsTaken)
{
    std::string_view text = "kHz";
    int thousands = 0;
    EXPECT_TRUE(TakeMetricPrefix(text, thousands));
    EXPECT_EQ(text, "Hz");

    for (const char* other : {"", "Hz", " k", "g"})
    {
        text = other;
        thousands = 7;
        EXPECT_FALSE(TakeMetricPrefix(text, thousands));
        EXPECT_EQ(text, other);
        EXPECT_EQ(thousands, 7);
    }
}
