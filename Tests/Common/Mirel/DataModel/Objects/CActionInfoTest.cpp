#include "Mirel/DataModel/Objects/CActionInfo.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;
using Mirel::DataModel::CObjectInfo;
using Tests::CEventCounter;

namespace
{

class CCountedCommand : public Mirel::Core::ICommand
{
public:
    explicit CCountedCommand(int& alive_) : alive(alive_) { ++alive; }
    CCountedCommand(const CCountedCommand&) = delete;
    CCountedCommand& operator=(const CCountedCommand&) = delete;
    ~CCountedCommand() override { --alive; }
    void Execute() override { ++runs; }

    int runs = 0;

private:
    int& alive;
};

} // namespace

TEST(CActionInfo, DescribesAnActionLikeAnyObject)
{
    const CActionInfo info("Reset", "Sets all back");
    const Mirel::DataModel::IConstObjectInfo& object = info;

    EXPECT_STREQ(object.GetName(), "Reset");
    EXPECT_STREQ(object.GetComment(), "Sets all back");
    EXPECT_EQ(info.GetAction(), nullptr);
    EXPECT_STREQ(CActionInfo().GetName(), "");
}

TEST(CActionInfo, CommandGoesWithTheDescriptionOnlyIfOwned)
{
    int alive = 0;
    CCountedCommand borrowed(alive);
    {
        const CActionInfo first("", "", new CCountedCommand(alive), true);
        const CActionInfo second("", "", &borrowed, false);
        EXPECT_EQ(alive, 2);
        second.GetAction()->Execute();
    }
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(borrowed.runs, 1);
}

TEST(CActionInfo, NewCommandFiresAndTheOldOneGoesIfOwned)
{
    int alive = 0;
    CCountedCommand borrowed(alive);
    CActionInfo info("", "", new CCountedCommand(alive), true);
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetAction(&borrowed, false);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(info.GetAction(), &borrowed);

    info.SetAction(nullptr, true);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(info.GetAction(), nullptr);
}

TEST(CActionInfo, CopyFromTakesTheTextsAndLeavesTheCommand)
{
    int alive = 0;
    CCountedCommand command(alive);
    CActionInfo info("", "", &command, false);
    CEventCounter changes(info.GetChangedEventProvider());

    info.CopyFrom(CObjectInfo("a", "b"));

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(info.GetName(), "a");
    EXPECT_EQ(info.GetAction(), &command);
}
