#include "Mirel/DataModel/Controls/CParamTextControl.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::DataModel::Controls::CParamTextControl;
using Mirel::DataModel::Objects::CCaptureParam;
using Tests::CEventCounter;

TEST(CParamTextControl, TakesATextAndShowsTheValueThatItGot)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    CParamTextControl control(param);

    EXPECT_TRUE(control.SetText(" 2.5 "));
    EXPECT_EQ(param.GetValue(), 2.5F);
    EXPECT_STREQ(control.GetText(), "2.50");
    EXPECT_TRUE(control.SetText("2.5"));
    EXPECT_TRUE(control.SetText("1e9"));
    EXPECT_EQ(param.GetValue(), 10.0F);
}

TEST(CParamTextControl, TextThatStandsForNoValueChangesNothing)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    CParamTextControl control(param);
    CEventCounter sets(param.GetSetEventProvider());

    for (const char* text : {"", "   ", "loud", "2.5 elephants", "nan", static_cast<const char*>(nullptr)})
    {
        EXPECT_FALSE(control.SetText(text));
    }
    EXPECT_EQ(sets.Take(), 0);
}

TEST(CParamTextControl, ItsOwnTextIsTakenAsAText)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    CParamTextControl control(param);
    param.SetValue(2.504F);

    EXPECT_TRUE(control.SetText(control.GetText()));
    EXPECT_EQ(param.GetValue(), 2.5F);
}

TEST(CParamTextControl, ControlThatIsNotEditableTakesNothing)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F, 4.0F));
    CParamTextControl control(param);
    CEventCounter changes(control.GetEditableChangedEventProvider());
    control.SetDefault();
    EXPECT_EQ(param.GetValue(), 4.0F);

    control.SetEditable(false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(control.IsEditable());
    EXPECT_FALSE(control.SetText("2"));
    param.SetValue(3.0F);
    control.SetDefault();
    EXPECT_EQ(param.GetValue(), 3.0F);
}

TEST(CParamTextControl, EditCapturesTheParameter)
{
    CCaptureParam param(Tests::Real(0.0F, 10.0F));
    CEventCounter ends(param.GetEndCaptureEventProvider());
    {
        CParamTextControl control(param);
        control.BeginEdit();
        EXPECT_TRUE(param.IsCaptured());
        EXPECT_TRUE(control.GetEditCapture().IsCaptured());
        control.EndEdit();
        EXPECT_FALSE(param.IsCaptured());
        control.BeginEdit();
    }
    EXPECT_FALSE(param.IsCaptured());
    EXPECT_EQ(ends.Take(), 2);
}
