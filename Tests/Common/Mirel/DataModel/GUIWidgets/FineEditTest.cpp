#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Common/Mirel/GUI/Popups/PopupRig.h"
#include "Mirel/DataModel/GUIWidgets/CFineEditOpener.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel;
using DataModel::Controls::CParamControl;
using DataModel::GUIWidgets::CFineEditOpener;
using DataModel::Objects::CCaptureParam;
using GUI::ENativeKey;

namespace
{

class CFineEditTest : public testing::Test
{
public:
    CFineEditTest() { param.SetValue(0.5F); }

    CParamControl& Open(CParamControl& opened)
    {
        opener.OpenFineEdit(opened, {1200, 1300});
        rig.platform.Pump();
        return opened;
    }

    Tests::CPopupRig rig;
    CCaptureParam param{Tests::Real(0.0F, 1.0F, 0.25F)};
    CParamControl control{param};
    CFineEditOpener opener{rig.platform, Tests::TestLook(), rig.window.get()};
};

TEST_F(CFineEditTest, OpensAtThePlaceWithTheTextSelected)
{
    Open(control);
    ASSERT_NE(opener.GetDialog(), nullptr);
    EXPECT_EQ(opener.GetDialog()->GetPosition(), (Core::CPoint{1200, 1300}));
    const std::string text = DataModel::Controls::CBaseParamTextViewer(param).GetText();
    EXPECT_EQ(opener.GetDialog()->GetField().GetText(), text);
    EXPECT_EQ(opener.GetDialog()->GetField().GetEditing().GetSelectedText(), text);
    EXPECT_TRUE(opener.GetDialog()->GetField().HasFocus());
    EXPECT_TRUE(rig.window->IsInputBlocked());
}

TEST_F(CFineEditTest, ReturnSetsTheValueInOneGestureAndCloses)
{
    Tests::CEventCounter begun(control.GetEditCapture().GetBeginCaptureEventProvider());
    Tests::CEventCounter ended(control.GetEditCapture().GetEndCaptureEventProvider());
    Open(control);
    rig.Type("0.125");
    rig.PressKey(ENativeKey::Return);
    EXPECT_FLOAT_EQ(param.GetValue(), 0.125F);
    EXPECT_EQ(begun.Take(), 1);
    EXPECT_EQ(ended.Take(), 1);
    EXPECT_EQ(opener.GetDialog(), nullptr);
    EXPECT_EQ(rig.platform.GetWindowCount(), 1);
    EXPECT_FALSE(rig.window->IsInputBlocked());
}

TEST_F(CFineEditTest, EscapeClosesAndLeavesTheValue)
{
    Open(control);
    rig.Type("0.9");
    rig.PressKey(ENativeKey::Escape);
    EXPECT_FLOAT_EQ(param.GetValue(), 0.5F);
    EXPECT_EQ(opener.GetDialog(), nullptr);
}

TEST_F(CFineEditTest, TextThatIsNoValueStaysForAnotherTry)
{
    Open(control);
    rig.Type("loud");
    rig.PressKey(ENativeKey::Return);
    ASSERT_NE(opener.GetDialog(), nullptr);
    EXPECT_TRUE(opener.GetDialog()->GetField().IsWrong());
    EXPECT_FLOAT_EQ(param.GetValue(), 0.5F);
    rig.Type("0.75");
    rig.PressKey(ENativeKey::Return);
    EXPECT_FLOAT_EQ(param.GetValue(), 0.75F);
}

TEST_F(CFineEditTest, ValueOutsideOfTheRangeIsClamped)
{
    Open(control);
    rig.Type("17");
    rig.PressKey(ENativeKey::Return);
    EXPECT_FLOAT_EQ(control.GetPosition(), 1.0F);
}

TEST_F(CFineEditTest, OlderWindowGoesFirst)
{
    CCaptureParam other(Tests::Real(0.0F, 1.0F));
    CParamControl otherControl(other);
    Open(control);
    Open(otherControl);
    EXPECT_EQ(rig.platform.GetWindowCount(), 2);
    EXPECT_EQ(&opener.GetDialog()->GetControl(), &otherControl);
    opener.CloseFineEdit(control);
    EXPECT_NE(opener.GetDialog(), nullptr);
    opener.CloseFineEdit(otherControl);
    EXPECT_EQ(opener.GetDialog(), nullptr);
    EXPECT_FALSE(rig.window->IsInputBlocked());
}

TEST_F(CFineEditTest, ControlThatCannotBeEditedOpensNone)
{
    control.SetEditable(false);
    Open(control);
    EXPECT_EQ(opener.GetDialog(), nullptr);
}

} // namespace
