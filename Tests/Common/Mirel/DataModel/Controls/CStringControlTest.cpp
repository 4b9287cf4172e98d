#include "Mirel/DataModel/Controls/CStringControl.h"

#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::DataModel::Controls::CStringControl;
using Mirel::DataModel::Objects::CCaptureString;
using Mirel::DataModel::Objects::CStringInfo;
using Tests::CEventCounter;

TEST(CStringControl, TakesTextsAndTheDefault)
{
    CCaptureString string(CStringInfo("", "", "Untitled"));
    CStringControl control(string);

    EXPECT_TRUE(control.SetText("Trace"));
    EXPECT_STREQ(string.GetValue(), "Trace");
    EXPECT_STREQ(control.GetText(), "Trace");
    EXPECT_TRUE(control.SetText(nullptr));
    EXPECT_STREQ(string.GetValue(), "");
    control.SetDefault();
    EXPECT_STREQ(string.GetValue(), "Untitled");
}

TEST(CStringControl, ControlThatIsNotEditableTakesNothing)
{
    CCaptureString string(CStringInfo("", "", "Untitled"));
    CStringControl control(string);
    CEventCounter changes(control.GetEditableChangedEventProvider());

    control.SetEditable(false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(control.IsEditable());
    EXPECT_FALSE(control.SetText("Trace"));
    control.SetDefault();
    EXPECT_STREQ(string.GetValue(), "");
}

TEST(CStringControl, EditCapturesTheString)
{
    CCaptureString string;
    CEventCounter ends(string.GetEndCaptureEventProvider());
    {
        CStringControl control(string);
        control.BeginEdit();
        EXPECT_TRUE(string.IsCaptured());
        EXPECT_TRUE(control.GetEditCapture().IsCaptured());
        control.EndEdit();
        EXPECT_FALSE(string.IsCaptured());
        control.BeginEdit();
    }
    EXPECT_EQ(ends.Take(), 2);
}
