// Random trees after random changes stand as if they had been built so at once.

#include "Common/Mirel/Layout/LayoutRig.h"
#include "Common/Mirel/Layout/LayoutTree.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck/gtest.h>

using namespace Tests;

namespace
{

constexpr std::size_t cellCount = 200;

/// Checks every cell that is displayed all the way up; what a hidden one holds need not be laid out.
void CheckAgainstReference(const CNode& root, const CLiveTree& live)
{
    const auto places = ReferenceLayout(root);
    std::vector<const CNode*> nodes = {&root};
    for (std::size_t i = 0; i < nodes.size(); ++i)
    {
        const CPlace& place = places.at(nodes[i]);
        RC_ASSERT(live.GetCell(*nodes[i]).GetSize() == (CSize{place.size[0], place.size[1]}));
        RC_ASSERT(live.GetCell(*nodes[i]).GetPosition() == (CPoint{place.position[0], place.position[1]}));
        for (const auto& child : nodes[i]->children)
        {
            if (child->displayed)
            {
                nodes.push_back(child.get());
            }
        }
    }
}

} // namespace

RC_GTEST_PROP(LayoutChanges, RandomTreesStandWherePlainArithmeticPutsThem, (std::uint32_t seed))
{
    std::mt19937 random(seed);
    const auto root = RandomTree(cellCount, random);
    const CLiveTree live(*root);
    CheckAgainstReference(*root, live);
}

RC_GTEST_PROP(LayoutChanges, ChangesLaidOutAtOnceEqualALayoutFromScratch, (std::uint32_t seed))
{
    std::mt19937 random(seed);
    const auto root = RandomTree(cellCount, random);
    CLiveTree live(*root);
    for (int change = 0; change < 30; ++change)
    {
        live.ChangeAtRandom(*root, random);
        CheckAgainstReference(*root, live);
    }
    const CLiveTree scratch(*root);
    CheckAgainstReference(*root, scratch);
}

RC_GTEST_PROP(LayoutChanges, ChangesThatWaitEqualALayoutFromScratch, (std::uint32_t seed))
{
    std::mt19937 random(seed);
    const auto root = RandomTree(cellCount, random);
    CLiveTree live(*root);
    for (int round = 0; round < 5; ++round)
    {
        live.GetRoot().SetAutoUpdate(false);
        for (int change = 0; change < 20; ++change)
        {
            live.ChangeAtRandom(*root, random);
        }
        live.GetRoot().SetAutoUpdate(true);
        CheckAgainstReference(*root, live);
    }
}

RC_GTEST_PROP(LayoutChanges, LayingOutAgainMovesNothing, (std::uint32_t seed))
{
    std::mt19937 random(seed);
    const auto root = RandomTree(cellCount, random);
    const CLiveTree live(*root);
    live.GetRoot().Relayout();
    CheckAgainstReference(*root, live);
    live.GetRoot().Update();
    CheckAgainstReference(*root, live);
}
