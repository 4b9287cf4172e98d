#include "Mirel/DataModel/Objects/CConstCaptureString.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

TEST(CConstCaptureString, ShowsItselfForReadingAlone)
{
    CConstCaptureString string(CStringInfo("Title", "What it says", "untitled"));
    const IConstCaptureString& readable = string;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Title");
    EXPECT_STREQ(readable.GetValue(), "");
    static_assert(!std::is_base_of_v<ICaptureString, CConstCaptureString>);
}

TEST(CConstCaptureString, OwnerSetsTheTextAndAChangeFires)
{
    CConstCaptureString string;
    CEventCounter changes(string.GetValueChangedEventProvider());
    string.SetText("one");
    string.SetText("one");
    EXPECT_STREQ(string.GetValue(), "one");
    EXPECT_EQ(changes.Take(), 1);
    string.SetText(nullptr);
    EXPECT_STREQ(string.GetValue(), "");
    string.SetText("");
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CConstCaptureString, OwnerMayHoldItInCapture)
{
    CConstCaptureString string;
    const IConstCaptureString& readable = string;
    CEventCounter begins(readable.GetBeginCaptureEventProvider());
    CEventCounter ends(readable.GetEndCaptureEventProvider());
    string.BeginCapture();
    EXPECT_TRUE(readable.IsCaptured());
    string.EndCapture();
    EXPECT_FALSE(readable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}
