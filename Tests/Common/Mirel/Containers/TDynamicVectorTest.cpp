#include "Mirel/Containers/TDynamicVector.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <vector>

namespace Mirel::Containers
{
namespace
{

using CStepVector = TDynamicVector<int, CStepGrowthStrategy>;

TEST(TDynamicVector, ValueInitialisesNewElementsAndKeepsOldOnes)
{
    TDynamicVector<int> vector(2);
    vector[0] = 7;
    vector.Resize(4);
    EXPECT_EQ(vector.GetCount(), 4);
    EXPECT_EQ(vector[0], 7);
    EXPECT_EQ(vector[1], 0);
    EXPECT_EQ(vector[3], 0);
}

TEST(TDynamicVector, TakesANegativeCountForNone)
{
    TDynamicVector<int> vector(3);
    vector.Resize(-1);
    EXPECT_EQ(vector.GetCount(), 0);
    EXPECT_EQ(TDynamicVector<int>(-5).GetCount(), 0);
}

TEST(TDynamicVector, GrowsToTheLargerOfRequestAndStep)
{
    CStepVector vector(0, CStepGrowthStrategy(10));
    vector.Resize(3);
    EXPECT_EQ(vector.GetCapacity(), 10);
    vector.Resize(25);
    EXPECT_EQ(vector.GetCapacity(), 25);
}

TEST(TDynamicVector, ShrinksOnlyBelowOneStep)
{
    CStepVector vector(0, CStepGrowthStrategy(10));
    vector.Resize(40);
    vector.Resize(30);
    EXPECT_EQ(vector.GetCapacity(), 40);
    vector.Resize(29);
    EXPECT_EQ(vector.GetCapacity(), 29);
}

TEST(TDynamicVector, KeepsElementsInPlaceWhileTheCapacityStands)
{
    CStepVector vector(0, CStepGrowthStrategy(10));
    vector.Add(1);
    const int* first = vector.GetData();
    for (int i = 1; i < 10; ++i)
    {
        vector.Add(i);
    }
    EXPECT_EQ(vector.GetData(), first);
}

TEST(TDynamicVector, RemovesOneElementAndClosesTheGap)
{
    TDynamicVector<int> vector(3);
    vector[0] = 1;
    vector[1] = 2;
    vector[2] = 3;
    vector.Remove(1);
    EXPECT_EQ(vector.GetCount(), 2);
    EXPECT_EQ(vector[1], 3);
}

TEST(TDynamicVector, HoldsWhatCanOnlyBeMoved)
{
    TDynamicVector<std::unique_ptr<int>, CStepGrowthStrategy> vector(0, CStepGrowthStrategy(2));
    for (int i = 0; i < 9; ++i)
    {
        vector.Add(std::make_unique<int>(i));
    }
    vector.Resize(3);
    EXPECT_EQ(*vector[2], 2);
    vector.Clear();
    EXPECT_EQ(vector.GetCount(), 0);
}

TEST(TDynamicVector, IsSeenThroughItsInterfaces)
{
    TDynamicVector<int> vector(1);
    TIVector<int>& writable = vector;
    writable[0] = 5;
    const TIConstVector<int>& readable = vector;
    EXPECT_EQ(readable[0], 5);
    EXPECT_EQ(readable.GetCount(), 1);
}

RC_GTEST_PROP(TDynamicVector, BehavesLikeAStandardVector,
              (const std::vector<std::pair<int, int>>& operations))
{
    CStepVector vector(0, CStepGrowthStrategy(5));
    std::vector<int> model;
    for (const auto& [operation, value] : operations)
    {
        const auto size = static_cast<unsigned>(value) % 100U;
        switch (static_cast<unsigned>(operation) % 3U)
        {
        case 0:
            vector.Add(value);
            model.push_back(value);
            break;
        case 1:
            vector.Resize(static_cast<int>(size));
            model.resize(size);
            break;
        default:
            if (!model.empty())
            {
                vector.Remove(static_cast<int>(size % model.size()));
                model.erase(model.begin() + static_cast<std::ptrdiff_t>(size % model.size()));
            }
        }
        RC_ASSERT(vector.GetCount() == static_cast<int>(model.size()));
        RC_ASSERT(vector.GetCapacity() >= vector.GetCount());
        RC_ASSERT(std::equal(model.begin(), model.end(), vector.GetData()));
    }
}

} // namespace
} // namespace Mirel::Containers
