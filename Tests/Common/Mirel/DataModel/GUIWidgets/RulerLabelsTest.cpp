#include "Mirel/DataModel/GUIWidgets/RulerLabels.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::DataModel::GUIWidgets;

namespace
{

using Flags = std::vector<bool>;

/// Labels `width` wide that begin `pitch` apart.
std::vector<CLabelExtent> Row(int count, int pitch, int width)
{
    std::vector<CLabelExtent> labels;
    labels.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        labels.push_back({i * pitch, i * pitch + width});
    }
    return labels;
}

bool Close(const CLabelExtent& a, const CLabelExtent& b)
{
    return a.begin - b.end < 4 && b.begin - a.end < 4;
}

} // namespace

TEST(RulerLabels, FourPixelsBetweenLabelsAreEnough)
{
    EXPECT_EQ(ChooseLabels(Row(4, 14, 10), noLabel), (Flags{true, true, true, true}));
    EXPECT_EQ(ChooseLabels(Row(4, 13, 10), noLabel), (Flags{true, false, false, true}));
    EXPECT_EQ(ChooseLabels(Row(5, 13, 10), noLabel), (Flags{true, false, true, false, true}));
}

TEST(RulerLabels, NoneAndOne)
{
    EXPECT_TRUE(ChooseLabels({}, noLabel).empty());
    EXPECT_EQ(ChooseLabels(Row(1, 10, 10), 0), Flags{true});
}

TEST(RulerLabels, TheFirstOfTwoThatCollideStays)
{
    EXPECT_EQ(ChooseLabels(Row(2, 5, 10), noLabel), (Flags{true, false}));
}

TEST(RulerLabels, LastAndZeroComeBeforeThoseBetween)
{
    // Without a zero the second would stay and the third go.
    EXPECT_EQ(ChooseLabels(Row(6, 10, 15), noLabel), (Flags{true, false, true, false, false, true}));
    EXPECT_EQ(ChooseLabels(Row(6, 10, 15), 3), (Flags{true, false, false, true, false, true}));
    // Zero goes where it would touch the last.
    EXPECT_EQ(ChooseLabels(Row(6, 10, 15), 4), (Flags{true, false, true, false, false, true}));
}

TEST(RulerLabels, OrderFromTheBottomUpIsTheSame)
{
    const std::vector<CLabelExtent> upward = {{90, 100}, {75, 85}, {60, 80}, {0, 10}};
    EXPECT_EQ(ChooseLabels(upward, noLabel), (Flags{true, true, false, true}));
}

RC_GTEST_PROP(RulerLabels, StayApartAndNoneIsLeftOutWithoutNeed, ())
{
    std::vector<CLabelExtent> labels;
    const int count = *rc::gen::inRange(1, 30);
    for (int i = 0; i < count; ++i)
    {
        const int begin = 9 * i + *rc::gen::inRange(0, 9);
        labels.push_back({begin, begin + *rc::gen::inRange(1, 40)});
    }
    const auto zero = static_cast<std::size_t>(*rc::gen::inRange(0, count));
    const Flags kept = ChooseLabels(labels, zero);
    RC_ASSERT(kept.front());
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        bool collides = false;
        for (std::size_t j = 0; j < labels.size(); ++j)
        {
            collides = collides || (i != j && kept[j] && Close(labels[i], labels[j]));
        }
        RC_ASSERT(kept[i] != collides);
    }
    RC_ASSERT(kept.back() || count == 1 || Close(labels.front(), labels.back()));
    RC_ASSERT(kept[zero] || Close(labels[zero], labels.front()) || Close(labels[zero], labels.back()));
}
