#include "Mirel/DataModel/Controls/CBaseStringViewer.h"

#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::DataModel::Controls::CBaseStringViewer;
using Mirel::DataModel::Objects::CCaptureString;
using Tests::CEventCounter;

TEST(CBaseStringViewer, ShowsTheTextAndFiresWhenItChanges)
{
    CCaptureString string;
    const CBaseStringViewer viewer(string);
    CEventCounter changes(viewer.GetTextChangedEventProvider());
    EXPECT_EQ(&viewer.GetString(), &string);
    EXPECT_EQ(&viewer.GetInfo(), &string.GetInfo());
    EXPECT_STREQ(viewer.GetText(), "");

    string.SetValue("Trace");
    EXPECT_STREQ(viewer.GetText(), "Trace");
    EXPECT_EQ(changes.Take(), 1);
    string.SetValue("Trace");
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CBaseStringViewer, CapturesAreForwardedAndConnectionsEndWithTheViewer)
{
    CCaptureString string;
    {
        const CBaseStringViewer viewer(string);
        CEventCounter begins(viewer.GetBeginCaptureEventProvider());
        string.BeginCapture();
        EXPECT_TRUE(viewer.IsCaptured());
        EXPECT_EQ(begins.Take(), 1);
    }
    string.EndCapture(); // these would reach freed memory
    string.SetValue("a");
    EXPECT_STREQ(string.GetValue(), "a");
}
