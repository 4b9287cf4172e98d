#include "Mirel/DataModel/CObjectInfo.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel;
using Tests::CEventCounter;

TEST(CObjectInfo, HoldsCopiesOfItsTexts)
{
    char name[] = "In";
    const CObjectInfo info(name, "The input");
    name[0] = 'X';

    EXPECT_STREQ(info.GetName(), "In");
    EXPECT_STREQ(info.GetComment(), "The input");
    EXPECT_STREQ(CObjectInfo().GetName(), "");
    EXPECT_STREQ(CObjectInfo().GetComment(), "");
}

TEST(CObjectInfo, SettingATextFiresEvenIfItIsTheSame)
{
    CObjectInfo info("In", "Input");
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetName("In");
    EXPECT_EQ(changes.Take(), 1);
    info.SetName("Out");
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(info.GetName(), "Out");
    info.SetComment("Input");
    EXPECT_EQ(changes.Take(), 1);
    info.SetComment("Output");
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(info.GetComment(), "Output");
}

TEST(CObjectInfo, NullTextsStayNull)
{
    CObjectInfo info(nullptr, nullptr);
    EXPECT_EQ(info.GetName(), nullptr);
    EXPECT_EQ(info.GetComment(), nullptr);

    CObjectInfo other("a", "b");
    other.CopyFrom(info);
    EXPECT_EQ(other.GetName(), nullptr);
    EXPECT_EQ(other.GetComment(), nullptr);
}

TEST(CObjectInfo, CopyFromTakesBothTextsAndFiresOnce)
{
    const CObjectInfo source("a", "b");
    CObjectInfo target;
    CEventCounter changes(target.GetChangedEventProvider());
    CEventCounter sourceChanges(source.GetChangedEventProvider());

    target.CopyFrom(source);

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(sourceChanges.Take(), 0);
    EXPECT_STREQ(target.GetName(), "a");
    EXPECT_STREQ(target.GetComment(), "b");
}

TEST(CObjectInfo, CopyFromItselfKeepsTheTexts)
{
    CObjectInfo info("a", "b");
    info.CopyFrom(info);
    EXPECT_STREQ(info.GetName(), "a");
    EXPECT_STREQ(info.GetComment(), "b");
}

TEST(CObjectInfo, CopyHasTheTextsAndNoListeners)
{
    CObjectInfo source("a", "b");
    CEventCounter changes(source.GetChangedEventProvider());

    CObjectInfo copy(source);
    copy.SetName("c");
    CObjectInfo viaInterface(static_cast<const IConstObjectInfo&>(source));
    viaInterface.SetName("d");

    EXPECT_EQ(changes.Take(), 0);
    EXPECT_STREQ(source.GetName(), "a");
    EXPECT_STREQ(copy.GetComment(), "b");
    EXPECT_STREQ(viaInterface.GetComment(), "b");
}

TEST(CObjectInfo, AssignmentKeepsTheListenersAndFiresOnce)
{
    const CObjectInfo source("a", "b");
    CObjectInfo target;
    CEventCounter changes(target.GetChangedEventProvider());

    target = source;

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_STREQ(target.GetName(), "a");
}

TEST(CObjectInfo, WritableInterfaceIsReadThroughTheConstOne)
{
    CObjectInfo info;
    IObjectInfo& writable = info;
    const IConstObjectInfo& readable = writable;

    writable.SetName("a");

    EXPECT_STREQ(readable.GetName(), "a");
    EXPECT_EQ(&readable.GetChangedEventProvider(), &info.GetChangedEventProvider());
}
