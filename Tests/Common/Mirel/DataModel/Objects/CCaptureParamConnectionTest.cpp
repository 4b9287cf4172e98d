#include "Mirel/DataModel/Objects/CCaptureParamConnection.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;
using Tests::CRangeParam;

namespace
{

/// Two sides and a connection between them.
class CCaptureParamConnectionTest : public testing::Test
{
protected:
    void WireAndEnable(ICaptureParam& first, ICaptureParam& second)
    {
        connection->SetFirst(&first);
        connection->SetSecond(&second);
        connection->Enable(true);
    }

    CRangeParam a{0.0f, 10.0f};
    CRangeParam b{100.0f, 200.0f};
    CRangeParam narrow{0.0f, 6.0f};
    std::unique_ptr<CCaptureParamConnection> connection = std::make_unique<CCaptureParamConnection>();
};

} // namespace

TEST_F(CCaptureParamConnectionTest, BeginsDisabledPlainAndWithFeedback)
{
    EXPECT_FALSE(connection->IsEnabled());
    EXPECT_FALSE(connection->IsNormalized());
    EXPECT_FALSE(connection->IsReverse());
    EXPECT_FALSE(connection->IsDiff());
    EXPECT_TRUE(connection->AllowsFeedback());
}

TEST_F(CCaptureParamConnectionTest, EitherSideWritesTheOther)
{
    connection->SetNormalized(true);
    WireAndEnable(a, b);
    a.SetValue(2.5f);
    EXPECT_EQ(b.GetValue(), 125.0f);
    b.SetValue(150.0f);
    EXPECT_EQ(a.GetValue(), 5.0f);
}

TEST_F(CCaptureParamConnectionTest, EnablingUpdatesTheSecondSide)
{
    a.SetValue(2.5f);
    b.SetValue(200.0f);
    connection->SetNormalized(true);
    WireAndEnable(a, b);
    EXPECT_EQ(a.GetValue(), 2.5f);
    EXPECT_EQ(b.GetValue(), 125.0f);
}

TEST_F(CCaptureParamConnectionTest, ResponseGoesThereAndItsInverseBack)
{
    connection->SetNormalized(true);
    connection->SetResponse(GetResponsePair(8));
    WireAndEnable(a, b);
    a.SetValue(5.0f);
    EXPECT_NEAR(b.GetValue(), 125.0, 1e-4);
    b.SetValue(136.0f);
    EXPECT_NEAR(a.GetValue(), 6.0, 1e-4);
}

TEST_F(CCaptureParamConnectionTest, ReversalIsUndoneOnTheWayBack)
{
    connection->SetNormalized(true);
    connection->SetReverse(true);
    connection->SetResponse(GetResponsePair(8));
    WireAndEnable(a, b);
    a.SetValue(5.0f);
    EXPECT_NEAR(b.GetValue(), 175.0, 1e-4);
    EXPECT_NEAR(a.GetValue(), 5.0, 1e-4);
    b.SetValue(164.0f);
    EXPECT_NEAR(a.GetValue(), 6.0, 1e-4);
    EXPECT_NEAR(b.GetValue(), 164.0, 1e-3);
}

TEST_F(CCaptureParamConnectionTest, ASideIsPushedBackToTheOthersLimit)
{
    WireAndEnable(a, narrow);
    a.SetValue(4.0f);
    a.SetValue(9.0f);
    EXPECT_EQ(narrow.GetValue(), 6.0f);
    EXPECT_EQ(a.GetValue(), 6.0f);
    // Also if the other side stands at its limit already and does not fire.
    a.SetValue(8.0f);
    EXPECT_EQ(narrow.GetValue(), 6.0f);
    EXPECT_EQ(a.GetValue(), 6.0f);
}

TEST_F(CCaptureParamConnectionTest, WithoutFeedbackASideKeepsItsValue)
{
    connection->SetAllowsFeedback(false);
    WireAndEnable(a, narrow);
    a.SetValue(9.0f);
    EXPECT_EQ(narrow.GetValue(), 6.0f);
    EXPECT_EQ(a.GetValue(), 9.0f);
    narrow.SetValue(2.0f);
    EXPECT_EQ(a.GetValue(), 2.0f);
}

TEST_F(CCaptureParamConnectionTest, DiffHandsMovementsOver)
{
    connection->SetDiff(true);
    WireAndEnable(a, b);
    a.SetValue(4.0f);
    EXPECT_EQ(b.GetValue(), 104.0f);
    b.SetValue(102.0f);
    EXPECT_EQ(a.GetValue(), 2.0f);
    EXPECT_EQ(b.GetValue(), 102.0f);
}

TEST_F(CCaptureParamConnectionTest, DiffDoesNotPushBack)
{
    connection->SetDiff(true);
    WireAndEnable(a, narrow);
    a.SetValue(9.0f);
    EXPECT_EQ(narrow.GetValue(), 6.0f);
    EXPECT_EQ(a.GetValue(), 9.0f);
    a.SetValue(8.0f);
    EXPECT_EQ(narrow.GetValue(), 5.0f);
}

TEST_F(CCaptureParamConnectionTest, SettersUpdateAndFireOnAChangeOnly)
{
    a.SetValue(2.5f);
    WireAndEnable(a, b);
    // The plain value was below the range of the other side, and came back as what that made of it.
    EXPECT_EQ(a.GetValue(), 10.0f);
    a.SetValue(2.5f);
    CEventCounter changes(connection->GetChangedEventProvider());
    connection->SetNormalized(false);
    connection->SetReverse(false);
    connection->SetDiff(false);
    connection->SetAllowsFeedback(true);
    connection->SetResponse(GetResponsePair(linearResponseCurve));
    connection->Enable(true);
    EXPECT_EQ(changes.Take(), 0);

    connection->SetNormalized(true);
    EXPECT_EQ(b.GetValue(), 200.0f);
    a.SetValue(2.5f);
    connection->SetReverse(true);
    EXPECT_EQ(b.GetValue(), 175.0f);
    connection->SetResponse(GetResponsePair(8));
    EXPECT_NEAR(b.GetValue(), 193.75, 1e-3);
    connection->SetAllowsFeedback(false);
    connection->SetDiff(true);
    EXPECT_EQ(changes.Take(), 5);
    connection->Enable(false);
    EXPECT_EQ(changes.Take(), 1);
    a.SetValue(0.0f);
    EXPECT_NEAR(b.GetValue(), 193.75, 1e-3);
}

TEST_F(CCaptureParamConnectionTest, CapturesGoBothWays)
{
    WireAndEnable(a, b);
    a.BeginCapture();
    EXPECT_TRUE(b.IsCaptured());
    a.EndCapture();
    EXPECT_FALSE(b.IsCaptured());
    b.BeginCapture();
    EXPECT_TRUE(a.IsCaptured());
    b.EndCapture();
    EXPECT_FALSE(a.IsCaptured());
    EXPECT_FALSE(b.IsCaptured());
}

TEST_F(CCaptureParamConnectionTest, ACaptureIsTakenUpOnEnablingAndEndedOnDisabling)
{
    b.BeginCapture();
    WireAndEnable(a, b);
    EXPECT_TRUE(a.IsCaptured());
    connection->Enable(false);
    EXPECT_FALSE(a.IsCaptured());
    EXPECT_TRUE(b.IsCaptured());
    connection->Enable(true);
    connection.reset();
    EXPECT_FALSE(a.IsCaptured());
    EXPECT_TRUE(b.IsCaptured());
}

TEST_F(CCaptureParamConnectionTest, IsInertWithoutASide)
{
    connection->Enable(true);
    connection->Update();
    connection->SetFirst(&a);
    a.SetValue(5.0f);
    a.BeginCapture();
    a.EndCapture();
    connection->SetFirst(nullptr);
    connection->SetSecond(&b);
    b.SetValue(150.0f);
    connection->Update();
    EXPECT_EQ(a.GetValue(), 5.0f);
    EXPECT_EQ(b.GetValue(), 150.0f);
}

TEST_F(CCaptureParamConnectionTest, AParameterMayBeConnectedToItself)
{
    WireAndEnable(a, a);
    a.SetValue(5.0f);
    a.BeginCapture();
    a.EndCapture();
    EXPECT_EQ(a.GetValue(), 5.0f);
    EXPECT_FALSE(a.IsCaptured());
}

TEST_F(CCaptureParamConnectionTest, AListenerOfASideMayDestroyOrUnwireTheConnection)
{
    WireAndEnable(a, narrow);
    CFunctionCommand unwire([this] { connection->SetSecond(nullptr); });
    narrow.GetValueChangedEventProvider().Connect(unwire);
    a.SetValue(9.0f);
    narrow.GetValueChangedEventProvider().Disconnect(&unwire);
    a.SetValue(3.0f);
    EXPECT_EQ(narrow.GetValue(), 6.0f);

    connection->SetSecond(&narrow);
    CFunctionCommand destroy([this] { connection.reset(); });
    narrow.GetValueChangedEventProvider().Connect(destroy);
    a.SetValue(1.0f);
    EXPECT_EQ(connection, nullptr);
    EXPECT_EQ(narrow.GetValue(), 1.0f);
    narrow.GetValueChangedEventProvider().Disconnect(&destroy);
}
