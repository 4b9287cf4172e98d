#include "Mirel/DataModel/Objects/EValueKind.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;

TEST(EValueKind, NamesOfModelFilesGiveTheirCode)
{
    EXPECT_EQ(static_cast<int>(ValueKindFromName("boolean")), 0);
    EXPECT_EQ(static_cast<int>(ValueKindFromName("integer")), 1);
    EXPECT_EQ(static_cast<int>(ValueKindFromName("enumeration")), 1);
}

TEST(EValueKind, AnyOtherNameOrNoneIsAReal)
{
    for (const char* name : {"real", "", "Boolean", "integer ", "float"})
    {
        EXPECT_EQ(static_cast<int>(ValueKindFromName(name)), 2) << name;
    }
    EXPECT_EQ(static_cast<int>(ValueKindFromName(nullptr)), 2);
}

TEST(EValueKind, AllKindsButTheRealAreWhole)
{
    EXPECT_TRUE(IsWholeValueKind(0));
    EXPECT_TRUE(IsWholeValueKind(1));
    EXPECT_FALSE(IsWholeValueKind(2));
    EXPECT_TRUE(IsWholeValueKind(3));
    EXPECT_FALSE(IsWholeValueKind(4));
    EXPECT_FALSE(IsWholeValueKind(-1));
}
