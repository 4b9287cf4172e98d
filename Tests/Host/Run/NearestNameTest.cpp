#include "Host/Run/NearestName.h"

#include <gtest/gtest.h>

namespace Host
{
namespace
{

const std::vector<std::string> Names = {"Bypass", "Stereo Mode", "View Mode", "Sync", "Delay"};

TEST(FindNearestName, TakesTheFewestChangesOfLetters)
{
    EXPECT_EQ(FindNearestName("Viewmode", Names), "View Mode");
    EXPECT_EQ(FindNearestName("dealy", Names), "Delay");
    EXPECT_EQ(FindNearestName("snyc", Names), "Sync");
    EXPECT_EQ(FindNearestName("STEREO", Names), "Stereo Mode");
}

TEST(FindNearestName, TakesTheFirstOfSeveralAndNothingFromNothing)
{
    EXPECT_EQ(FindNearestName("x", {"a", "b"}), "a");
    EXPECT_EQ(FindNearestName("", Names), "Sync"); // The shortest is the nearest to nothing.
    EXPECT_EQ(FindNearestName("x", {}), "");
}

TEST(IsSameName, LooksAtLettersAndNotAtCapitals)
{
    EXPECT_TRUE(IsSameName("view MODE", "View Mode"));
    EXPECT_FALSE(IsSameName("View", "View Mode"));
    EXPECT_FALSE(IsSameName("[", "{")); // 32 apart in the code, like a letter and its capital.
}

} // namespace
} // namespace Host
