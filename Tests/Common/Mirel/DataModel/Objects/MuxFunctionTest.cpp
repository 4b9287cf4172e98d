#include "Mirel/DataModel/Objects/MuxFunction.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::DataModel::Objects;

namespace
{
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
} // namespace

TEST(MuxFunction, EveryNameGivesItsValue)
{
    const struct
    {
        const char* name;
        float plain;
        float normalized;
    } rows[] = {
        {"mean", 0.5f, 0.5f},    {"max", 0.75f, 0.75f},  {"min", 0.25f, 0.25f}, {"-max", -0.75f, 0.25f},
        {"-min", -0.25f, 0.75f}, {"-mean", -0.5f, 0.5f}, {"<", 1.0f, 1.0f},     {"<=", 1.0f, 1.0f},
        {">", 0.0f, 0.0f},       {">=", 0.0f, 0.0f},     {"=", 0.0f, 0.0f},
    };
    for (const auto& row : rows)
    {
        const EMuxFunction function = MuxFunctionFromName(row.name);
        EXPECT_EQ(CombineValues(function, {0.25f, 0.5f, 0.75f}, false), row.plain) << row.name;
        EXPECT_EQ(CombineValues(function, {0.25f, 0.5f, 0.75f}, true), row.normalized) << row.name;
    }
}

TEST(MuxFunction, UnknownNamesGiveTheMean)
{
    for (const char* name : {"", "Mean", "- max", "==", "sum"})
    {
        EXPECT_EQ(MuxFunctionFromName(name), EMuxFunction::Mean) << name;
    }
    EXPECT_EQ(MuxFunctionFromName(nullptr), EMuxFunction::Mean);
}

TEST(MuxFunction, ComparisonsHoldBetweenEachValueAndTheNext)
{
    const auto compare = [](const char* name, const std::vector<float>& values)
    { return CombineValues(MuxFunctionFromName(name), values, false); };
    EXPECT_EQ(compare("<", {1.0f, 2.0f, 2.0f}), 0.0f);
    EXPECT_EQ(compare("<=", {1.0f, 2.0f, 2.0f}), 1.0f);
    EXPECT_EQ(compare("<=", {1.0f, 2.0f, 1.0f}), 0.0f);
    EXPECT_EQ(compare(">", {3.0f, 2.0f, 1.0f}), 1.0f);
    EXPECT_EQ(compare(">", {3.0f, 2.0f, 2.0f}), 0.0f);
    EXPECT_EQ(compare(">=", {3.0f, 2.0f, 2.0f}), 1.0f);
    EXPECT_EQ(compare("=", {2.0f, 2.0f, 2.0f}), 1.0f);
    EXPECT_EQ(compare("=", {2.0f, 2.0f, 1.0f}), 0.0f);
    EXPECT_EQ(compare("<", {5.0f}), 1.0f);
}

TEST(MuxFunction, NoValuesGiveZero)
{
    for (const char* name : {"mean", "max", "-min", "<", "="})
    {
        EXPECT_EQ(CombineValues(MuxFunctionFromName(name), {}, true), 0.0f) << name;
    }
}

TEST(MuxFunction, NaNIsTakenAsTheFunctionLibraryTakesIt)
{
    // The greater of a NaN and a number is the second; a comparison with NaN is unordered.
    EXPECT_EQ(CombineValues(EMuxFunction::Max, {notANumber, 2.0f}, false), 2.0f);
    EXPECT_EQ(CombineValues(EMuxFunction::Equal, {notANumber, 2.0f}, false), 1.0f);
    EXPECT_EQ(CombineValues(EMuxFunction::Greater, {notANumber, 2.0f}, false), 0.0f);
}
