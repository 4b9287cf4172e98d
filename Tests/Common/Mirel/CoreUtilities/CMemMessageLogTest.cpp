#include "Mirel/CoreUtilities/CMemMessageLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::CoreUtilities
{
namespace
{

std::vector<std::string> TextsOf(const CMemMessageLog& log)
{
    std::vector<std::string> texts;
    for (const auto& message : log.GetMessages())
    {
        texts.push_back(message.text);
    }
    return texts;
}

TEST(CMemMessageLog, HasNoMessagesAtFirst)
{
    const CMemMessageLog log;
    EXPECT_FALSE(log.HasMessages());
    EXPECT_FALSE(log.HasMessages(CMessageKind::Error));
    EXPECT_EQ(log.GetThreshold(), 0xFFFFFFFFU);
}

TEST(CMemMessageLog, KeepsEveryPostInOrderWithItsInitialThreshold)
{
    CMemMessageLog log;
    log.Post(CMessageKind::Info, "one", 0);
    log.Post(CMessageKind::Error, "two", 1000000);
    log.Post(CMessageKind::Warning, "three", -1);
    EXPECT_THAT(TextsOf(log), testing::ElementsAre("one", "two", "three"));
    EXPECT_EQ(log.GetMessages()[1].kind, 0);
    EXPECT_EQ(log.GetMessages()[2].kind, 1);
    EXPECT_EQ(log.GetMessages()[0].kind, 2);
}

TEST(CMemMessageLog, DropsWhatIsMoreVerboseThanItsThreshold)
{
    CMemMessageLog log;
    log.SetThreshold(2);
    log.Post(CMessageKind::Error, "kept", 2);
    log.Post(CMessageKind::Error, "dropped", 3);
    // Minus one is the largest unsigned value.
    log.Post(CMessageKind::Error, "dropped too", -1);
    EXPECT_THAT(TextsOf(log), testing::ElementsAre("kept"));
}

TEST(CMemMessageLog, RecordsTheThresholdAndNotTheVerbosity)
{
    CMemMessageLog log;
    log.SetThreshold(5);
    log.Post(CMessageKind::Error, "text", 1);
    EXPECT_EQ(log.GetMessages()[0].level, 5U);
}

TEST(CMemMessageLog, AMessageCountsWhileTheThresholdHasNotFallenBelowItsLevel)
{
    CMemMessageLog log;
    log.SetThreshold(5);
    log.Post(CMessageKind::Warning, "text", 0);
    EXPECT_TRUE(log.HasMessages());
    log.SetThreshold(4);
    EXPECT_FALSE(log.HasMessages());
    EXPECT_FALSE(log.HasMessages(CMessageKind::Warning));
    log.SetThreshold(6);
    EXPECT_TRUE(log.HasMessages());
    EXPECT_TRUE(log.HasMessages(CMessageKind::Warning));
    EXPECT_FALSE(log.HasMessages(CMessageKind::Error));
}

TEST(CMemMessageLog, ClearsOneKindAndKeepsTheOrderOfTheOthers)
{
    CMemMessageLog log;
    log.Post(CMessageKind::Error, "e1", 0);
    log.Post(CMessageKind::Warning, "w", 0);
    log.Post(CMessageKind::Info, "i", 0);
    log.Post(CMessageKind::Error, "e2", 0);
    log.Clear(1);
    EXPECT_FALSE(log.HasMessages(1));
    EXPECT_TRUE(log.HasMessages(0));
    EXPECT_THAT(TextsOf(log), testing::ElementsAre("e1", "i", "e2"));
}

TEST(CMemMessageLog, ClearDropsEverything)
{
    CMemMessageLog log;
    log.Post(CMessageKind::Error, "e", 0);
    log.Clear();
    EXPECT_FALSE(log.HasMessages());
    EXPECT_TRUE(log.GetMessages().empty());
}

TEST(CMemMessageLog, CopiesTheTextAndTakesNullForEmpty)
{
    CMemMessageLog log;
    std::string text = "first";
    IMessageLog& target = log;
    target.Post(CMessageKind::Error, text.c_str(), 0);
    text = "other";
    target.Post(CMessageKind::Error, nullptr, 0);
    EXPECT_THAT(TextsOf(log), testing::ElementsAre("first", ""));
}

} // namespace
} // namespace Mirel::CoreUtilities
