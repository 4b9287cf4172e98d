#include "Host/Run/CParameterSet.h"

#include "Host/InstanceRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace Host
{
namespace
{

class CParameterSetTest : public testing::Test
{
protected:
    double Parse(const char* name, const char* value)
    {
        double normalized = -1.0;
        const CParameterSet::CParameter* parameter = parameters.Find(name, error);
        EXPECT_NE(parameter, nullptr) << error;
        EXPECT_TRUE(parameters.ParseValue(*parameter, value, normalized, error)) << error;
        return normalized;
    }

    std::string Refusal(const char* name, const char* value)
    {
        double normalized = -1.0;
        EXPECT_FALSE(parameters.ParseValue(*parameters.Find(name, error), value, normalized, error)) << value;
        EXPECT_EQ(normalized, -1.0);
        return error;
    }

    Tests::CInstanceRig rig;
    CParameterSet parameters{rig.Get().GetParameters()};
    std::string error;
};

TEST_F(CParameterSetTest, ListsWhatTheInstanceHas)
{
    ASSERT_EQ(parameters.GetAll().size(), 7U);
    const CParameterSet::CParameter& delay = parameters.GetAll()[4];
    EXPECT_EQ(delay.id, "P4");
    EXPECT_EQ(delay.name, "Delay");
    EXPECT_EQ(delay.steps, -1);
    EXPECT_EQ(delay.min, 0.0);
    EXPECT_EQ(delay.max, 300.0);
}

TEST_F(CParameterSetTest, FindsByNameAndByIdentifier)
{
    EXPECT_EQ(parameters.Find("view mode", error)->id, "P2");
    EXPECT_EQ(parameters.Find("p2", error)->id, "P2");
    EXPECT_EQ(parameters.Find("viewmode", error), nullptr);
    EXPECT_EQ(error, "no parameter is called \"viewmode\"; the nearest is \"View Mode\"");
}

TEST_F(CParameterSetTest, TakesNumbersInTheParametersUnits)
{
    EXPECT_EQ(Parse("Delay", "75"), 0.25);
    EXPECT_EQ(Parse("Trigger Value", "-1"), 0.0);
    EXPECT_EQ(Parse("Trigger Value", "0.5"), 0.75);
    EXPECT_EQ(Parse("View Mode", "1"), 0.5);
}

TEST_F(CParameterSetTest, TakesTextsThatTheParameterShows)
{
    EXPECT_EQ(Parse("View Mode", "Flow"), 0.0);
    EXPECT_EQ(Parse("View Mode", "loop"), 0.5);
    EXPECT_EQ(Parse("View Mode", "Trigger"), 1.0);
    EXPECT_EQ(Parse("Bypass", "On"), 1.0);
    EXPECT_EQ(Parse("Trigger Direction", "Down"), 1.0); // A continuous one with names for whole numbers.
    EXPECT_EQ(Parse("Delay", "300.0"), 1.0);
}

TEST_F(CParameterSetTest, RefusesWhatIsNoValue)
{
    EXPECT_EQ(Refusal("Delay", "300.5"), "300.5 is outside the range of \"Delay\", 0 to 300");
    EXPECT_EQ(Refusal("Trigger Value", "-2"), "-2 is outside the range of \"Trigger Value\", -1 to 1");
    EXPECT_EQ(Refusal("View Mode", "Sideways"), "\"Sideways\" is no value of \"View Mode\"");
    EXPECT_EQ(Refusal("Delay", "nan"), "\"nan\" is no value of \"Delay\"");
}

TEST_F(CParameterSetTest, PrintsATableWithTheValuesOfNow)
{
    rig.Get().GetParameters().SetParameterValue("P4", 0.5);
    std::ostringstream out;
    parameters.Print(out);
    EXPECT_THAT(out.str(), testing::StartsWith("identifier      name               steps       range     "
                                               "default  value  text\nMasterBypassID  Bypass "));
    EXPECT_THAT(out.str(),
                testing::HasSubstr(
                    "P4              Delay              continuous  0 to 300  0        150    150.0\n"));
}

} // namespace
} // namespace Host
