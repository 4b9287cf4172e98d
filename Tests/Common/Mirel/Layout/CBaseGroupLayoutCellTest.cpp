#include "Mirel/Layout/CBaseGroupLayoutCell.h"

#include "Common/Mirel/Layout/LayoutRig.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

using namespace Mirel::Layout;
using namespace Tests;

namespace
{

/// Counts its updates.
class CCountingGroup : public CGroupLayoutCell
{
public:
    CCountingGroup() : CGroupLayoutCell(ELayoutType::Row, 0, 1, 2) {}

    void Update() override
    {
        ++updates;
        CGroupLayoutCell::Update();
    }

    int updates = 0;
};

} // namespace

TEST(CBaseGroupLayoutCell, BeginsAutomaticAndAtTheBegin)
{
    const CGroupLayoutCell group(ELayoutType::Column, 3, 1, 2);
    EXPECT_EQ(group.GetInternalHAlign(), EAlign::Begin);
    EXPECT_EQ(group.GetInternalVAlign(), EAlign::Begin);
    EXPECT_TRUE(group.GetAutoWidth());
    EXPECT_TRUE(group.GetAutoHeight());
    EXPECT_EQ(group.GetFixedSize(), CSize({0, 0}));
    EXPECT_EQ(group.GetHMargin(), 1);
    EXPECT_EQ(group.GetVMargin(), 2);
    EXPECT_EQ(group.GetSpacing(), 3);
    EXPECT_EQ(group.GetLayoutType(), ELayoutType::Column);
}

TEST(CBaseGroupLayoutCell, EverySetterUpdatesOnAChangeOnly)
{
    CCountingGroup group;
    const std::vector<std::function<void()>> setters = {
        [&] { group.SetInternalAlign(EAlign::Center, EAlign::End); },
        [&] { group.SetInternalHAlign(EAlign::End); },
        [&] { group.SetInternalVAlign(EAlign::Center); },
        [&] { group.SetAutoWidth(false); },
        [&] { group.SetAutoHeight(false); },
        [&] { group.SetAutoSize(true); },
        [&] {
            group.SetFixedSize({3, 4});
        },
        [&] { group.SetHMargin(5); },
        [&] { group.SetVMargin(6); },
        [&] { group.SetSpacing(7); },
        [&] { group.SetLayoutType(ELayoutType::LayerStack); },
    };
    for (const auto& set : setters)
    {
        group.updates = 0;
        set();
        EXPECT_EQ(group.updates, 1);
        set();
        EXPECT_EQ(group.updates, 1);
    }
    EXPECT_EQ(group.GetInternalHAlign(), EAlign::End);
    EXPECT_EQ(group.GetInternalVAlign(), EAlign::Center);
    EXPECT_TRUE(group.GetAutoWidth());
    EXPECT_TRUE(group.GetAutoHeight());
    EXPECT_EQ(group.GetFixedSize(), CSize({3, 4}));
    EXPECT_EQ(group.GetHMargin(), 5);
    EXPECT_EQ(group.GetVMargin(), 6);
}

TEST(CBaseGroupLayoutCell, OffersItsOperationsToElements)
{
    CGroupLayoutCell group;
    ILayoutGroup& element = group;
    element.SetHMargin(3);
    element.SetAutoSize(false);
    element.SetFixedSize({50, 60});
    CBox box({10, 10});
    EXPECT_NE(element.AddCell(&box, {}, false), nullptr);
    EXPECT_EQ(element.GetCurrentCell(), &box);
    element.SetInsertionPoint(nullptr);
    EXPECT_EQ(element.GetCurrentCell(), nullptr);
    LayOut(group);
    EXPECT_EQ(box.GetPosition(), CPoint({3, 25}));
    element.RemoveCell(&box, false);
    EXPECT_FALSE(box.HasParent());
}

TEST(CBaseGroupLayoutCell, ChangedOptionsUpdateTheGroupUntilTheCellLeaves)
{
    CCountingGroup group;
    CBox box({10, 10});
    CLayoutOptions* options = group.AddCell(&box, {}, false);
    ASSERT_NE(options, nullptr);
    group.updates = 0;
    options->SetFlex(1.0F);
    EXPECT_EQ(group.updates, 1);
    options->SetFlex(1.0F);
    EXPECT_EQ(group.updates, 1);
}
