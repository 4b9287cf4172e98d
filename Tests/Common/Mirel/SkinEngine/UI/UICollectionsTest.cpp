// COLLECTION and FOREACH in a skin: what they read, make and tell.

#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "ShownTree.h"
#include "Support/EventCounter.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Tests::CUIRig;
using Tests::ShownTexts;

/// A collection of texts that show the names of their items.
std::string Texts(const std::string& attributes)
{
    return std::string("<COLLECTION ").append(attributes).append("><TEXT value='$item_id$'/></COLLECTION>");
}

// What they read.

TEST(UICollections, StartWithTheClampedCount)
{
    struct SCase
    {
        const char* attributes;
        std::size_t items;
    };
    // The smaller of max_count and the greater of count and min_count; no item below 0.
    for (const SCase& each : {SCase{"", 0}, SCase{"count='3'", 3}, SCase{"count='3' max_count='2'", 2},
                              SCase{"count='1' min_count='2'", 2}, SCase{"min_count='2'", 2},
                              SCase{"count='5' min_count='3' max_count='1'", 1}, SCase{"count='-4'", 0},
                              SCase{"count='-4' min_count='-9'", 0}, SCase{"count='1e30' max_count='4'", 4},
                              SCase{"count='inf' max_count='4'", 4}, SCase{"count='nan'", 0},
                              SCase{"count='three'", 0}, SCase{"count='2.9'", 2}})
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build(Texts(std::string("id='c' ").append(each.attributes)))) << each.attributes;
        EXPECT_EQ(ShownTexts(rig.light).size(), each.items) << each.attributes;
        EXPECT_THAT(rig.TakeMessages(), IsEmpty()) << each.attributes;
    }
}

TEST(UICollections, ACountThatIsSetIsClampedAndWhatIsNoNumberChangesNothing)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(Texts("id='c' count='2' min_count='1' max_count='3'")));
    const auto itemsAt = [&rig](float count)
    {
        rig.Param("c.count").SetValue(count);
        return static_cast<int>(ShownTexts(rig.light).size());
    };
    EXPECT_EQ(itemsAt(-1.0f), 1);
    EXPECT_EQ(itemsAt(4.0f), 3);
    EXPECT_EQ(itemsAt(std::numeric_limits<float>::quiet_NaN()), 3);
    EXPECT_EQ(itemsAt(-std::numeric_limits<float>::infinity()), 1);
    EXPECT_EQ(itemsAt(1e30f), 3);
    EXPECT_EQ(itemsAt(std::numeric_limits<float>::quiet_NaN()), 3);
    EXPECT_EQ(itemsAt(1.6f), 2);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2.0f);
}

TEST(UICollections, ACountBeyondAllMeasureIsCutWithOneMessage)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c'><PARAM id='$item_id$.p'/></COLLECTION>"));
    rig.Param("c.count").SetValue(1e30f);
    EXPECT_THAT(
        rig.TakeMessages(),
        ElementsAre("0: The collections have too many items in all: some are left out or incomplete."));
    EXPECT_GT(rig.Value("c.count"), 1000.0f);
    rig.Param("c.count").SetValue(0);
    EXPECT_FALSE(rig.Has("c[0].p"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
}

TEST(UICollections, TheCountIsAnIntegerFromTheLeastToTheMostWithTheClampedCountAsDefault)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='9' min_count='2' max_count='7'/><COLLECTION id='d'/>"));
    const IConstParamInfo& info = rig.Param("c.count").GetInfo();
    EXPECT_FLOAT_EQ(info.GetMin(), 2.0f);
    EXPECT_FLOAT_EQ(info.GetMax(), 7.0f);
    EXPECT_FLOAT_EQ(info.GetDefault(), 7.0f);
    EXPECT_EQ(info.GetType(), ValueKindInteger);
    const IConstParamInfo& open = rig.Param("d.count").GetInfo();
    EXPECT_FLOAT_EQ(open.GetMin(), 0.0f);
    EXPECT_FLOAT_EQ(open.GetMax(), 2147483647.0f);
    EXPECT_FLOAT_EQ(open.GetDefault(), 0.0f);
}

TEST(UICollections, TheCountOfAFollowerCanOnlyBeRead)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='3'/><FOREACH id='f' collection_id='c'/>"));
    EXPECT_EQ(rig.Find<ICaptureParam>("f.count"), nullptr);
    const auto* count = rig.Find<IConstCaptureParam>("f.count");
    ASSERT_NE(count, nullptr);
    EXPECT_FLOAT_EQ(count->GetValue(), 3.0f);
    EXPECT_FLOAT_EQ(count->GetInfo().GetMin(), 0.0f);
    EXPECT_FLOAT_EQ(count->GetInfo().GetMax(), 2147483648.0f);
    EXPECT_EQ(count->GetInfo().GetType(), ValueKindInteger);
}

TEST(UICollections, TheCountIsAnObjectOnlyIfItIsWanted)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='1'/><COLLECTION id='d' count='1'/>"
                          "<PARAM_TEXT param_id='d.count'/>",
                          false));
    EXPECT_FALSE(rig.Has("c.count"));
    EXPECT_TRUE(rig.Has("d.count"));
    EXPECT_TRUE(rig.Has("c"));
}

TEST(UICollections, ItemsLearnTheirNamesAndThoseOfTheItemsThatTheyFollow)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='a' count='2'><TEXT value='$item_id$'/></COLLECTION>"
                          "<COLLECTION id='b' count='2' item_name='me'><TEXT value='$me$ $item_id$'/>"
                          "</COLLECTION><FOREACH id='f' collection_id='a;b' item_name='it'>"
                          "<TEXT value='$it$ $a_it$ $b_it$ $a_item_id$'/></FOREACH>"));
    EXPECT_THAT(ShownTexts(rig.light),
                ElementsAre("a[0]", "a[1]", "b[0] $item_id$", "b[1] $item_id$", "f[0] a[0] b[0] $a_item_id$",
                            "f[1] a[1] b[1] $a_item_id$"));
}

TEST(UICollections, ItemsKnowTheVariablesOfTheirFileAndExpandItsTemplates)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<VARIABLE id='v' value='one'/><TEMPLATE id='T' t='x'><TEXT value='$t$ $v$'/></TEMPLATE>"
                  "<COLLECTION id='c'><T t='$item_id$'/></COLLECTION>"
                  "<VARIABLE id='v' value='two' override='true'/>"));
    rig.Param("c.count").SetValue(2);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0] one", "c[1] one"));
}

TEST(UICollections, ACollectionIsKeptInTheStateIfItIsPersistent)
{
    const std::string skin = Texts("id='c' persistent='true'") + Texts("id='d'");
    CUIRig rig;
    EXPECT_TRUE(rig.Build(skin));
    rig.Param("c.count").SetValue(3);
    rig.Param("d.count").SetValue(2);
    CSkinModelState state;
    rig.model.TakeState(state);
    CUIRig other;
    EXPECT_TRUE(other.Build(skin));
    other.model.RestoreState(state);
    EXPECT_THAT(ShownTexts(other.light), ElementsAre("c[0]", "c[1]", "c[2]"));
}

TEST(UICollections, ACollectionIsShownToTheHostIfItIsExposed)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(Texts("id='c' exposed='true'") + Texts("id='d'")));
    EXPECT_NE(rig.model.GetExposedObjects().Find("c"), nullptr);
    EXPECT_EQ(rig.model.GetExposedObjects().Find("d"), nullptr);
}

// Cases at the edge.

TEST(UICollections, AFollowerOfThreeAndFiveItemsHasThree)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='a' count='3'/><COLLECTION id='b' count='5'/>"
                          "<FOREACH id='f' collection_id='a;b'><TEXT value='$item_id$'/></FOREACH>"));
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 3.0f);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("f[0]", "f[1]", "f[2]"));
}

TEST(UICollections, AFollowerOfAnUnknownCollectionIsReportedAndStaysEmpty)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build("<FOREACH id='f' collection_id='x'><TEXT/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: x: Unknown identifier (object does not exist).",
                                                "0: Fatal error: skin parsing failed"));
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 0.0f);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, AFollowerOfWhatIsNoCollectionIsReportedAndStaysEmpty)
{
    CUIRig rig;
    rig.AddParam("p");
    EXPECT_FALSE(rig.Build("<FOREACH id='f' collection_id='p'><TEXT/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(), Contains("0: p: Unknown collection identifier (wrong object type)."));
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, AnEmptyBodyMakesEmptyItems)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='2'/><COLLECTION id='d' count='1'></COLLECTION>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2.0f);
    EXPECT_FLOAT_EQ(rig.Value("d.count"), 1.0f);
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, ThePresentCountChangesNothingAndTellsNobody)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(Texts("id='c' count='2'")));
    const GUI::CLightWidget* const first = rig.Widget(0);
    Tests::CEventCounter paramChanged(rig.Param("c.count").GetValueChangedEventProvider());
    auto* collection = rig.Find<IConstCollection>("c");
    ASSERT_NE(collection, nullptr);
    Tests::CEventCounter countChanged(collection->GetCountChangedEventProvider());
    rig.Param("c.count").SetValue(2);
    EXPECT_EQ(paramChanged.Take(), 0);
    EXPECT_EQ(countChanged.Take(), 0);
    EXPECT_EQ(rig.Widget(0), first);
    rig.Param("c.count").SetValue(3);
    EXPECT_EQ(countChanged.Take(), 1);
    EXPECT_EQ(rig.Widget(0), first);
}

TEST(UICollections, ANamelessOneHasItemsButNoNameForAFollowerOrALink)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build(Texts("id='' count='2'") + "<FOREACH id='f' collection_id=''><TEXT/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(),
                ElementsAre("0: Cannot create \"foreach\" collection, collection_id field is empty.",
                            "0: Fatal error: skin parsing failed"));
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("[0]", "[1]"));
    EXPECT_FALSE(rig.Has(""));
    EXPECT_FALSE(rig.Has(".count"));
    rig.Close();
    EXPECT_EQ(rig.light.GetChildCount(), 0);
}

TEST(UICollections, AnItemThatFailsIsKept)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='2'><TEXT value='$item_id$'/><TABLE_ROW/>"
                          "<PARAM_LINK from='nowhere' to='neither'/></COLLECTION>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2.0f);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0]", "c[1]"));
}

// What they make.

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
    const auto lastOfRow = [&rig] { return rig.Widget(rig.light.GetChildCount() - 1); };
    EXPECT_EQ(lastOfRow()->GetPosition().x, 50);
    rig.Param("d.count").SetValue(2);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 110);
    EXPECT_TRUE(rig.Has("d[1].t.visible"));
    // The items of c stand before those of d, which came first.
    rig.Param("c.count").SetValue(1);
    EXPECT_EQ(lastOfRow()->GetPosition().x, 90);
    rig.Param("c.count").SetValue(2);
    EXPECT_EQ(rig.Place(2), (std::vector<int>{30, 145, 20, 9}));
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
