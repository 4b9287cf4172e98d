// In which order the items of a skin's collections come and go, and counts that change meanwhile.

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "ShownTree.h"
#include "Support/CFunctionCommand.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using DataModel::Objects::CAction;
using testing::ElementsAre;
using Tests::CUIRig;
using Tests::ShownTexts;

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

/// One object an item, of a collection and of its follower.
constexpr const char* followed = "<COLLECTION id='a'><PARAM id='$item_id$.p'/></COLLECTION>"
                                 "<FOREACH id='f' collection_id='a'><PARAM id='$item_id$.q'/></FOREACH>"
                                 "<EXPOSED_OBJECTS object_ids='a.count;a[*].p;f[*].q'/>";

TEST(UICollectionOrder, ItemsComeInRisingOrderAndThoseOfAFollowerAfterThem)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(followed, false));
    CObjectsLog log(rig);
    rig.Param("a.count").SetValue(2);
    EXPECT_THAT(log.Take(), ElementsAre("+a[0].p", "+a[1].p", "+f[0].q", "+f[1].q"));
}

TEST(UICollectionOrder, ItemsGoInRisingOrderAndThoseOfAFollowerBeforeThem)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(followed, false));
    rig.Param("a.count").SetValue(3);
    CObjectsLog log(rig);
    rig.Param("a.count").SetValue(1);
    EXPECT_THAT(log.Take(), ElementsAre("-f[1].q", "-f[2].q", "-a[1].p", "-a[2].p"));
}

TEST(UICollectionOrder, WhoFollowedAnItemsObjectIsLeftAlone)
{
    CUIRig rig;
    auto& level = rig.AddParam("level", 0, 9);
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c' count='2'><TEXT id='$item_id$.t'/>"
                  "<PARAM_LINK from='level' to='$item_id$.t.opacity' trigger_condition='always'/>"
                  "<PARAM_TEXT param_id='$item_id$.t.opacity'/><PARAM_TEXT param_id='level'/></COLLECTION>"
                  "<PARAM_TEXT param_id='c[1].t.opacity' width='40' height='9'/>"));
    level.SetValue(1);
    const auto shown = [&rig] { return ShownTexts(rig.light).back(); };
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

TEST(UICollectionOrder, ACountThatAnItemAsksForWhileItIsMadeWaitsForTheOthers)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c'><TEXT value='$item_id$'/><PARAM id='$item_id$.p' max='9' "
                          "default='1'/></COLLECTION>"));
    CObjectsLog log(rig);
    log.At("+c[0].p", [&rig] { rig.Param("c.count").SetValue(1); });
    rig.Param("c.count").SetValue(3);
    EXPECT_THAT(log.Take(), testing::Contains("+c[2].p"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 1.0f);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0]"));
}

TEST(UICollectionOrder, ALinkOfAnItemMaySetTheCountOfItsOwnCollection)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' item_name='i'><TEXT value='$i$'/><PARAM id='$i$.p' max='9' "
                          "default='2'/><PARAM_LINK from='$i$.p' to='c.count' trigger_condition='always'/>"
                          "</COLLECTION>"));
    rig.Param("c.count").SetValue(5);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0]", "c[1]"));
    rig.Param("c[1].p").SetValue(3);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2.0f); // The third item asks for two.
    rig.Param("c[1].p").SetValue(1);
    EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0]"));
}

TEST(UICollectionOrder, ACountThatIsAskedForWhileAnItemGoesWaitsForTheOthers)
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
        EXPECT_THAT(ShownTexts(rig.light), ElementsAre("c[0]", "c[1]", "c[2]", "c[3]"));
    }
}

// A collection in an item of one that follows it. No such skin makes sense, but it must come to rest.

constexpr const char* circular =
    "<COLLECTION id='a' count='3'/><FOREACH id='f' collection_id='a;x'><TEXT value='$item_id$'/>"
    "<COLLECTION id='x' count='1'/></FOREACH>";

TEST(UICollectionOrder, AFollowerOfACollectionOfItsOwnItemsComesToRest)
{
    CUIRig rig;
    rig.Build(circular);
    for (const float count : {2.0f, 0.0f, 5.0f, 1.0f})
    {
        rig.Param("x.count").SetValue(count);
        EXPECT_LE(rig.light.GetChildCount(), static_cast<int>(rig.Value("a.count"))) << count;
        rig.Param("a.count").SetValue(count);
        EXPECT_LE(rig.light.GetChildCount(), static_cast<int>(count)) << count;
    }
    rig.Close();
    EXPECT_EQ(rig.light.GetChildCount(), 0);
    EXPECT_EQ(rig.model.GetObjects().GetCount(), 0);
}

TEST(UICollectionOrder, ASkinThatGoesMakesNoItemsOnTheWay)
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
