#include "Mirel/Containers/GrowthStrategies.h"

#include <gtest/gtest.h>

namespace Mirel::Containers
{
namespace
{

TEST(GrownCapacity, FollowsRequestsByTheRule)
{
    struct
    {
        const char* name;
        int request, capacity, step, expected;
    } const cases[] = {
        {"first request", 1, 0, 4, 4},
        {"one above grows by the step", 11, 10, 4, 14},
        {"exactly capacity plus step", 14, 10, 4, 14},
        {"far above grows to the request", 15, 10, 4, 15},
        {"equal keeps", 10, 10, 4, 10},
        {"one below keeps", 9, 10, 4, 10},
        {"exactly one step below keeps", 6, 10, 4, 10},
        {"more than a step below shrinks to the request", 5, 10, 4, 5},
        {"to nothing", 0, 10, 4, 0},
    };
    for (const auto& c : cases)
    {
        EXPECT_EQ(GrownCapacity(c.request, c.capacity, c.step), c.expected) << c.name;
    }
}

TEST(CStepGrowthStrategy, UsesItsStep)
{
    EXPECT_EQ(CStepGrowthStrategy(8).GetCapacity(3, 2), 10);
    EXPECT_EQ(CStepGrowthStrategy().GetCapacity(3, 2), 3);
}

TEST(CExpGrowthStrategy, Doubles)
{
    EXPECT_EQ(CExpGrowthStrategy().GetCapacity(9, 8), 16);
    EXPECT_EQ(CExpGrowthStrategy().GetCapacity(1, 0), 1);
    // A whole capacity below the capacity is nothing: it never shrinks by itself.
    EXPECT_EQ(CExpGrowthStrategy().GetCapacity(0, 8), 8);
}

} // namespace
} // namespace Mirel::Containers
