#include "Mirel/DataModel/CCascadeShare.h"

#include "Mirel/DataModel/Limits.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel;

namespace
{

/// Updates a share so often inside one outer update, and counts how many were allowed.
int UpdateInside(CCascadeShare& share, int times)
{
    int allowed = 0;
    for (int i = 0; i < times; ++i)
    {
        const CCascadeShare::CUpdate update(share);
        allowed += update.IsAllowed() ? 1 : 0;
    }
    return allowed;
}

int NestUpdates(CCascadeShare& share, int depth)
{
    const CCascadeShare::CUpdate update(share);
    return update.IsAllowed() && depth > 1 ? 1 + NestUpdates(share, depth - 1) : int{update.IsAllowed()};
}

} // namespace

TEST(CCascadeShare, UpdatesOneAfterTheOtherAreNotLimited)
{
    CCascadeShare::TakeRefusal();
    CCascadeShare share;
    EXPECT_EQ(UpdateInside(share, 2 * maxCascadeUpdates), 2 * maxCascadeUpdates);
    EXPECT_FALSE(CCascadeShare::TakeRefusal());
}

TEST(CCascadeShare, ALongCascadeEndsAndLeavesEveryOtherLinkAFewUpdates)
{
    CCascadeShare::TakeRefusal();
    CCascadeShare outer;
    CCascadeShare busy;
    CCascadeShare late;
    {
        const CCascadeShare::CUpdate root(outer);
        ASSERT_TRUE(root.IsAllowed());
        EXPECT_EQ(UpdateInside(busy, 2 * maxCascadeUpdates), maxCascadeUpdates - 1);
        EXPECT_EQ(UpdateInside(late, 100), maxLateUpdates);
    }
    EXPECT_TRUE(CCascadeShare::TakeRefusal());
    EXPECT_FALSE(CCascadeShare::TakeRefusal());

    const CCascadeShare::CUpdate root(outer);
    EXPECT_EQ(UpdateInside(busy, 10), 10);
    EXPECT_FALSE(CCascadeShare::TakeRefusal());
}

TEST(CCascadeShare, UpdatesNestToALimit)
{
    CCascadeShare share;
    EXPECT_EQ(NestUpdates(share, 2 * maxNestedUpdates), maxNestedUpdates);
    EXPECT_TRUE(CCascadeShare::TakeRefusal());
    EXPECT_EQ(NestUpdates(share, maxNestedUpdates), maxNestedUpdates);
    EXPECT_FALSE(CCascadeShare::TakeRefusal());
}
