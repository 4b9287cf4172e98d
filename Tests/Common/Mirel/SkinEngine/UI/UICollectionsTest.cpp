// COLLECTION and FOREACH in a skin: what they read, make and tell.

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
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

/// Notes what enters and leaves the dictionary, as "+id" and "-id".
class CObjectsLog
{
public:
    explicit CObjectsLog(CUIRig& rig_) : rig(rig_)
    {
        rig.model.GetObjects().GetAddedEventProvider().Connect(added);
        rig.model.GetObjects().GetRemovedEventProvider().Connect(removed);
    }
    CObjectsLog(const CObjectsLog&) = delete;
    CObjectsLog& operator=(const CObjectsLog&) = delete;
    ~CObjectsLog()
    {
        rig.model.GetObjects().GetAddedEventProvider().Disconnect(&added);
        rig.model.GetObjects().GetRemovedEventProvider().Disconnect(&removed);
    }

    std::vector<std::string> Take() { return std::exchange(lines, {}); }

    /// Runs when that line is noted, once.
    void At(const std::string& line, std::function<void()> call)
    {
        awaited = line;
        onAwaited = std::move(call);
    }

private:
    void OnAdded(const CDictionaryEntry& entry) { Note("+", entry); }
    void OnRemoved(const CDictionaryEntry& entry) { Note("-", entry); }

    void Note(const char* sign, const CDictionaryEntry& entry)
    {
        lines.push_back(std::string(sign).append(entry.id));
        if (lines.back() == awaited && onAwaited)
        {
            std::exchange(onAwaited, nullptr)();
        }
    }

    using Command = Core::TArgCommand<CObjectsLog, const CDictionaryEntry&>;

    CUIRig& rig;
    std::vector<std::string> lines;
    std::string awaited;
    std::function<void()> onAwaited;
    Command added{this, &CObjectsLog::OnAdded};
    Command removed{this, &CObjectsLog::OnRemoved};
};

/// What the texts of a skin show, from the back to the front.
std::vector<std::string> ShownTexts(CUIRig& rig)
{
    std::vector<std::string> texts;
    for (int i = 0; i < rig.light.GetChildCount(); ++i)
    {
        const auto* text = rig.Widget<GUI::CTextLightWidget>(i);
        texts.emplace_back(text == nullptr ? "?" : text->GetText());
    }
    return texts;
}

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
        EXPECT_EQ(ShownTexts(rig).size(), each.items) << each.attributes;
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
        return static_cast<int>(ShownTexts(rig).size());
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
    EXPECT_THAT(ShownTexts(rig), ElementsAre("a[0]", "a[1]", "b[0] $item_id$", "b[1] $item_id$",
                                             "f[0] a[0] b[0] $a_item_id$", "f[1] a[1] b[1] $a_item_id$"));
}

TEST(UICollections, ItemsKnowTheVariablesOfTheirFileAndExpandItsTemplates)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<VARIABLE id='v' value='one'/><TEMPLATE id='T' t='x'><TEXT value='$t$ $v$'/></TEMPLATE>"
                  "<COLLECTION id='c'><T t='$item_id$'/></COLLECTION>"
                  "<VARIABLE id='v' value='two' override='true'/>"));
    rig.Param("c.count").SetValue(2);
    EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0] one", "c[1] one"));
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
    EXPECT_THAT(ShownTexts(other), ElementsAre("c[0]", "c[1]", "c[2]"));
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
    EXPECT_THAT(ShownTexts(rig), ElementsAre("f[0]", "f[1]", "f[2]"));
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
    EXPECT_THAT(ShownTexts(rig), ElementsAre("[0]", "[1]"));
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
    EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0]", "c[1]"));
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

// In which order.

/// One object an item, of a collection and of its follower.
constexpr const char* followed = "<COLLECTION id='a'><PARAM id='$item_id$.p'/></COLLECTION>"
                                 "<FOREACH id='f' collection_id='a'><PARAM id='$item_id$.q'/></FOREACH>"
                                 "<EXPOSED_OBJECTS object_ids='a.count;a[*].p;f[*].q'/>";

TEST(UICollections, ItemsComeInRisingOrderAndThoseOfAFollowerAfterThem)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(followed, false));
    CObjectsLog log(rig);
    rig.Param("a.count").SetValue(2);
    EXPECT_THAT(log.Take(), ElementsAre("+a[0].p", "+a[1].p", "+f[0].q", "+f[1].q"));
}

TEST(UICollections, ItemsGoInRisingOrderAndThoseOfAFollowerBeforeThem)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(followed, false));
    rig.Param("a.count").SetValue(3);
    CObjectsLog log(rig);
    rig.Param("a.count").SetValue(1);
    EXPECT_THAT(log.Take(), ElementsAre("-f[1].q", "-f[2].q", "-a[1].p", "-a[2].p"));
}

TEST(UICollections, WhoFollowedAnItemsObjectIsLeftAlone)
{
    CUIRig rig;
    auto& level = rig.AddParam("level", 0, 9);
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c' count='2'><TEXT id='$item_id$.t'/>"
                  "<PARAM_LINK from='level' to='$item_id$.t.opacity' trigger_condition='always'/>"
                  "<PARAM_TEXT param_id='$item_id$.t.opacity'/><PARAM_TEXT param_id='level'/></COLLECTION>"
                  "<PARAM_TEXT param_id='c[1].t.opacity' width='40' height='9'/>"));
    level.SetValue(1);
    const auto shown = [&rig] { return ShownTexts(rig).back(); };
    const std::string one = shown();
    rig.Param("c.count").SetValue(1);
    level.SetValue(0);
    EXPECT_NE(shown(), one);
    rig.Param("c.count").SetValue(0);
    level.SetValue(1);
    rig.Param("c.count").SetValue(2);
    EXPECT_EQ(shown(), one);
    rig.Close();
    level.SetValue(0);
}

TEST(UICollections, ACountThatAnItemAsksForWhileItIsMadeWaitsForTheOthers)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c'><TEXT value='$item_id$'/><PARAM id='$item_id$.p' max='9' "
                          "default='1'/></COLLECTION>"));
    CObjectsLog log(rig);
    log.At("+c[0].p", [&rig] { rig.Param("c.count").SetValue(1); });
    rig.Param("c.count").SetValue(3);
    EXPECT_THAT(log.Take(), testing::Contains("+c[2].p"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 1.0f);
    EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0]"));
}

TEST(UICollections, ALinkOfAnItemMaySetTheCountOfItsOwnCollection)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' item_name='i'><TEXT value='$i$'/><PARAM id='$i$.p' max='9' "
                          "default='2'/><PARAM_LINK from='$i$.p' to='c.count' trigger_condition='always'/>"
                          "</COLLECTION>"));
    rig.Param("c.count").SetValue(5);
    EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0]", "c[1]"));
    rig.Param("c[1].p").SetValue(3);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2.0f); // The third item asks for two.
    rig.Param("c[1].p").SetValue(1);
    EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0]"));
}

TEST(UICollections, ACountThatIsAskedForWhileAnItemGoesWaitsForTheOthers)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c'><TEXT value='$item_id$'/><PARAM id='$item_id$.p'/></COLLECTION>"));
    rig.Param("c.count").SetValue(4);
    for (const char* line : {"-c[1].p", "-c[2].p", "-c[3].p"})
    {
        CObjectsLog log(rig);
        log.At(line, [&rig] { rig.Param("c.count").SetValue(4); });
        rig.Param("c.count").SetValue(1);
        EXPECT_FLOAT_EQ(rig.Value("c.count"), 4.0f);
        EXPECT_THAT(ShownTexts(rig), ElementsAre("c[0]", "c[1]", "c[2]", "c[3]"));
    }
}

TEST(UICollections, ASkinThatGoesMakesNoItemsOnTheWay)
{
    CUIRig rig;
    const CAction action("", "", new Tests::CFunctionCommand([] {}));
    int made = 0;
    rig.services.findAction = [&](const std::string&)
    {
        ++made;
        return &action;
    };
    // When a goes, b alone would call for more.
    EXPECT_TRUE(rig.Build("<COLLECTION id='a' count='1'/><COLLECTION id='b' count='5'/><FOREACH id='f' "
                          "collection_id='a;b'><INVISIBLE_ACTION_BUTTON action='A'/></FOREACH>"));
    EXPECT_EQ(std::exchange(made, 0), 1);
    rig.Close();
    EXPECT_EQ(made, 0);
}

} // namespace
} // namespace Mirel::SkinEngine
