#include "Mirel/DataModel/Objects/CStringInfo.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

namespace
{

void ExpectTexts(const IConstStringInfo& info, const char* name, const char* comment, const char* text)
{
    EXPECT_STREQ(info.GetName(), name);
    EXPECT_STREQ(info.GetComment(), comment);
    EXPECT_STREQ(info.GetDefault(), text);
}

} // namespace

TEST(CStringInfo, HoldsNameCommentAndDefaultText)
{
    ExpectTexts(CStringInfo("Title", "What it shows", "none"), "Title", "What it shows", "none");
    ExpectTexts(CStringInfo(), "", "", "");
    ExpectTexts(CStringInfo(nullptr, nullptr, nullptr), nullptr, nullptr, nullptr);
}

TEST(CStringInfo, EverySetterFiresEvenWithTheSameText)
{
    CStringInfo info("a", "b", "c");
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetName("a");
    EXPECT_EQ(changes.Take(), 1);
    info.SetComment("b");
    EXPECT_EQ(changes.Take(), 1);
    info.SetDefault("c");
    EXPECT_EQ(changes.Take(), 1);
    info.SetName("A");
    info.SetComment("B");
    info.SetDefault(nullptr);
    EXPECT_EQ(changes.Take(), 3);
    ExpectTexts(info, "A", "B", nullptr);
}

TEST(CStringInfo, CopyFromTakesEverythingAndFiresOnce)
{
    const CStringInfo source("a", nullptr, "c");
    CStringInfo target("x", "y", "z");
    CEventCounter changes(target.GetChangedEventProvider());

    target.CopyFrom(source);

    EXPECT_EQ(changes.Take(), 1);
    ExpectTexts(target, "a", nullptr, "c");
    target.CopyFrom(target);
    ExpectTexts(target, "a", nullptr, "c");
}

TEST(CStringInfo, CopiesHaveNoListenersAndAssignmentKeepsThem)
{
    CStringInfo source("a", "b", "c");
    CEventCounter sourceChanges(source.GetChangedEventProvider());
    CStringInfo copy(source);
    CStringInfo viaInterface(static_cast<const IConstStringInfo&>(source));
    copy.SetName("x");
    viaInterface.SetName("x");
    EXPECT_EQ(sourceChanges.Take(), 0);
    ExpectTexts(copy, "x", "b", "c");
    ExpectTexts(viaInterface, "x", "b", "c");

    source = copy;
    EXPECT_EQ(sourceChanges.Take(), 1);
    ExpectTexts(source, "x", "b", "c");
}

TEST(CStringInfo, WritableInterfaceIsReadThroughTheConstOne)
{
    CStringInfo info;
    IStringInfo& writable = info;
    const IConstStringInfo& readable = writable;
    writable.SetDefault("text");
    EXPECT_STREQ(readable.GetDefault(), "text");
}
