#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Support/EventCounter.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CUIRig;

TEST(UICollections, HaveAsManyItemsAsTheirCount)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<ROW width='400' height='300' internal_h_align='left'><TEXT width='10' height='9'/>"
                  "<COLLECTION id='c' count='3' max_count='2'><TEXT id='$item_id$.t' width='20' "
                  "height='9'/></COLLECTION>"
                  "<COLLECTION id='d' item_name='me'><TEXT id='$me$.t' width='30' height='9'/></COLLECTION>"
                  "<TEXT width='40' height='9'/></ROW>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2);
    EXPECT_TRUE(rig.Has("c[1].t.visible"));
    EXPECT_FALSE(rig.Has("c[2].t.visible"));
    const auto lastOfRow = [&rig] { return rig.Widget(1); };
    EXPECT_EQ(lastOfRow()->GetPosition().x, 50);
    rig.Param("d.count").SetValue(2);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 110);
    EXPECT_TRUE(rig.Has("d[1].t.visible"));
    // The items of c stand before those of d, which came first.
    rig.Param("c.count").SetValue(1);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 90);
    rig.Param("c.count").SetValue(2);
    EXPECT_EQ(rig.Place(5), (std::vector<int>{30, 145, 20, 9}));
    EXPECT_EQ(rig.Place(3), (std::vector<int>{50, 145, 30, 9}));
    rig.Param("c.count").SetValue(0);
    rig.Param("d.count").SetValue(0);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 10);
    EXPECT_EQ(rig.light.GetChildCount(), 2);
    EXPECT_FALSE(rig.Has("d[0].t.visible"));
}

TEST(UICollections, FollowOthersOfModelAndSkin)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='a' count='3'><TEXT id='$item_id$.t' opacity='0.3'/></COLLECTION>"
                          "<COLLECTION id='b' count='5'/>"
                          "<FOREACH id='f' collection_id='a;b'>"
                          "<IMAGE_PARAM_METER id='$item_id$' param_id='$a_item_id$.t.opacity'/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 3);
    EXPECT_EQ(rig.Find<ICaptureParam>("f.count"), nullptr);
    EXPECT_EQ(rig.light.GetChildCount(), 6);
    EXPECT_FLOAT_EQ(rig.Widget<CGUIImageParamMeter>(4)->GetViewer().GetPosition(), 0.3f);
    rig.Param("b.count").SetValue(1);
    EXPECT_EQ(rig.light.GetChildCount(), 4);
    rig.Param("a.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, RowsOfTablesMayBeItems)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TABLE><COLLECTION id='c' count='2'><TABLE_ROW><TEXT width='20' "
                          "height='10'/></TABLE_ROW></COLLECTION></TABLE>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_EQ(rig.Place(1)[1] - rig.Place(0)[1], 10);
    rig.Param("c.count").SetValue(4);
    EXPECT_EQ(rig.Place(0)[1], 130);
    rig.Param("c.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, MayBeEmptyNamelessOrNested)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(
        "<COLLECTION id='e' count='2'/><COLLECTION id='' count='2'><TEXT id='t$item_id$'/></COLLECTION>"
        "<COLLECTION id='n' count='2'><COLLECTION id='$item_id$.in' count='3' item_name='inner'>"
        "<TEXT id='$inner$'/></COLLECTION></COLLECTION>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("e.count"), 2);
    EXPECT_FALSE(rig.Has(".count"));
    EXPECT_TRUE(rig.Has("t[1].visible"));
    EXPECT_EQ(rig.light.GetChildCount(), 8);
    rig.Param("n[0].in.count").SetValue(1);
    EXPECT_EQ(rig.light.GetChildCount(), 6);
    rig.Param("n.count").SetValue(0);
    EXPECT_EQ(rig.light.GetChildCount(), 2);
    EXPECT_FALSE(rig.Has("n[0].in.count"));
    Tests::CEventCounter changed(rig.Param("e.count").GetValueChangedEventProvider());
    rig.Param("e.count").SetValue(2);
    EXPECT_EQ(changed.Take(), 0);
}

TEST(UICollections, FailuresAreReported)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build("<COLLECTION><TEXT/></COLLECTION><FOREACH><TEXT/></FOREACH><FOREACH id='f' "
                           "collection_id='x'><TEXT/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(),
                ElementsAre("0: Cannot create collection, id field is empty.",
                            "0: Cannot create \"foreach\" collection, collection_id field is empty.",
                            "0: x: Unknown identifier (object does not exist).",
                            "0: Fatal error: skin parsing failed"));
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, MessagesOfItemsAreShownOnlyWithErrors)
{
    std::vector<std::string> shown;
    CUIRig rig;
    rig.services.showItemMessages = [&shown](CoreUtilities::CMemMessageLog& log)
    { shown.push_back(log.GetMessages().front().text); };
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='1'><IMAGE_PARAM_KNOB/></COLLECTION>"
                          "<COLLECTION id='d' count='1'><TABLE_ROW/></COLLECTION>"));
    EXPECT_THAT(shown, ElementsAre("Cannot TABLE_ROW element outside a TABLE element."));
}

TEST(UICollections, WhatItemsReferToIsMarkedAsAPattern)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c'><IMAGE_PARAM_KNOB param_id='$item_id$.p'/></COLLECTION>"
                  "<FOREACH id='f' collection_id='c'><CURVE_GRAPH curve_id='$c_item_id$.q'/></FOREACH>",
                  false));
    EXPECT_TRUE(rig.model.GetExposure().IsWanted("c[7].p"));
    EXPECT_TRUE(rig.model.GetExposure().IsWanted("c[8].q"));
    EXPECT_FALSE(rig.model.GetExposure().IsWanted("c[8].r"));
    EXPECT_FALSE(rig.Has("c.count"));
}

TEST(UICollections, GoWithTheSkin)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(
        "<COLLECTION id='c' count='2'><IMAGE_GROUP_BOX id='$item_id$'><TEXT/></IMAGE_GROUP_BOX></COLLECTION>"
        "<FOREACH id='f' collection_id='c'><TEXT/></FOREACH>"));
    EXPECT_EQ(rig.light.GetChildCount(), 4);
    rig.Close();
    EXPECT_EQ(rig.light.GetChildCount(), 0);
    EXPECT_EQ(rig.model.GetObjects().GetCount(), 0);
}

} // namespace
} // namespace Mirel::SkinEngine
