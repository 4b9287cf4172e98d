#include "Mirel/Layout/CLayoutOptions.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::Layout;
using Tests::CEventCounter;

TEST(CLayoutOptions, BeginCenteredWithoutPositionRatioAndFlex)
{
    const CLayoutOptions options;
    EXPECT_EQ(options.GetHAlign(), EAlign::Center);
    EXPECT_EQ(options.GetVAlign(), EAlign::Center);
    EXPECT_EQ(options.GetHPosition(), 0);
    EXPECT_EQ(options.GetVPosition(), 0);
    EXPECT_FALSE(options.HasHPosition());
    EXPECT_FALSE(options.HasVPosition());
    EXPECT_EQ(options.GetWidthRatio(), -1.0F);
    EXPECT_EQ(options.GetHeightRatio(), -1.0F);
    EXPECT_EQ(options.GetFlex(), 0.0F);
}

TEST(CLayoutOptions, EachSetterFiresOnAChangeOnly)
{
    CLayoutOptions options;
    CEventCounter events(options.GetChangedEvent());

    options.SetHAlign(EAlign::Center);
    options.SetVAlign(EAlign::Center);
    options.SetWidthRatio(-1.0F);
    options.SetHeightRatio(-1.0F);
    options.SetFlex(0.0F);
    EXPECT_EQ(events.Take(), 0);

    options.SetHAlign(EAlign::Begin);
    EXPECT_EQ(events.Take(), 1);
    options.SetVAlign(EAlign::End);
    EXPECT_EQ(events.Take(), 1);
    options.SetHPosition(3);
    EXPECT_EQ(events.Take(), 1);
    options.SetVPosition(-4);
    EXPECT_EQ(events.Take(), 1);
    options.SetWidthRatio(0.25F);
    EXPECT_EQ(events.Take(), 1);
    options.SetHeightRatio(0.5F);
    EXPECT_EQ(events.Take(), 1);
    options.SetFlex(2.0F);
    EXPECT_EQ(events.Take(), 1);

    EXPECT_EQ(options.GetHAlign(), EAlign::Begin);
    EXPECT_EQ(options.GetVAlign(), EAlign::End);
    EXPECT_EQ(options.GetHPosition(), 3);
    EXPECT_EQ(options.GetVPosition(), -4);
    EXPECT_EQ(options.GetWidthRatio(), 0.25F);
    EXPECT_EQ(options.GetHeightRatio(), 0.5F);
    EXPECT_EQ(options.GetFlex(), 2.0F);
}

TEST(CLayoutOptions, FirstPositionCountsEvenIfItIsZero)
{
    CLayoutOptions options;
    CEventCounter events(options.GetChangedEvent());

    options.SetHPosition(0);
    EXPECT_TRUE(options.HasHPosition());
    EXPECT_FALSE(options.HasVPosition());
    EXPECT_EQ(events.Take(), 1);

    options.SetHPosition(0);
    EXPECT_EQ(events.Take(), 0);
    options.SetVPosition(0);
    EXPECT_TRUE(options.HasVPosition());
    EXPECT_EQ(events.Take(), 1);
}

TEST(CLayoutOptions, NaNIsNoChange)
{
    CLayoutOptions options;
    CEventCounter events(options.GetChangedEvent());
    options.SetFlex(std::numeric_limits<float>::quiet_NaN());
    options.SetWidthRatio(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(events.Take(), 0);
    EXPECT_EQ(options.GetFlex(), 0.0F);
    EXPECT_EQ(options.GetWidthRatio(), -1.0F);
}

TEST(CLayoutOptions, CopyHasTheValuesButNotTheListeners)
{
    CLayoutOptions options;
    options.SetHPosition(7);
    options.SetHeightRatio(0.5F);
    options.SetFlex(3.0F);
    const CEventCounter events(options.GetChangedEvent());

    CLayoutOptions copy(options);
    CEventCounter copyEvents(copy.GetChangedEvent());
    options.SetFlex(4.0F);
    EXPECT_EQ(copyEvents.Take(), 0);
    EXPECT_EQ(copy.GetHPosition(), 7);
    EXPECT_TRUE(copy.HasHPosition());
    EXPECT_EQ(copy.GetHeightRatio(), 0.5F);
    EXPECT_EQ(copy.GetFlex(), 3.0F);
}
