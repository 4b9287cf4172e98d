#include "Mirel/DataModel/Controls/CEditGesture.h"

#include "Mirel/Core/CCapture.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <string>

using Mirel::Core::CCapture;
using Mirel::DataModel::Controls::CEditGesture;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

TEST(CEditGesture, BeginAndEndCaptureTheTargetOnceEach)
{
    CCapture target;
    CEditGesture gesture(target);
    CEventCounter begins(gesture.GetCapture().GetBeginCaptureEventProvider());
    CEventCounter ends(gesture.GetCapture().GetEndCaptureEventProvider());
    CEventCounter targetBegins(target.GetBeginCaptureEventProvider());
    CEventCounter targetEnds(target.GetEndCaptureEventProvider());

    gesture.End();
    EXPECT_EQ(ends.Take() + targetEnds.Take(), 0);

    gesture.Begin();
    gesture.Begin();
    EXPECT_TRUE(gesture.GetCapture().IsCaptured());
    EXPECT_TRUE(target.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(targetBegins.Take(), 1);

    gesture.End();
    gesture.End();
    EXPECT_FALSE(gesture.GetCapture().IsCaptured());
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
    EXPECT_EQ(targetEnds.Take(), 1);
}

TEST(CEditGesture, OwnEventsComeBeforeTheTargets)
{
    CCapture target;
    CEditGesture gesture(target);
    std::string order;
    CFunctionCommand own([&] { order += "own "; });
    CFunctionCommand other([&] { order += "target "; });
    gesture.GetCapture().GetBeginCaptureEventProvider().Connect(own);
    gesture.GetCapture().GetEndCaptureEventProvider().Connect(own);
    target.GetBeginCaptureEventProvider().Connect(other);
    target.GetEndCaptureEventProvider().Connect(other);

    gesture.Begin();
    gesture.End();

    EXPECT_EQ(order, "own target own target ");
}

TEST(CEditGesture, GestureEndedByItsOwnListenerLeavesTheTargetFree)
{
    CCapture target;
    CEditGesture gesture(target);
    CFunctionCommand end([&] { gesture.End(); });
    gesture.GetCapture().GetBeginCaptureEventProvider().Connect(end);

    gesture.Begin();

    EXPECT_FALSE(gesture.GetCapture().IsCaptured());
    EXPECT_FALSE(target.IsCaptured());
}

TEST(CEditGesture, OpenGestureIsClosedAtTheEnd)
{
    CCapture target;
    CEventCounter ends(target.GetEndCaptureEventProvider());
    {
        CEditGesture gesture(target);
        gesture.Begin();
    }
    EXPECT_FALSE(target.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
    {
        const CEditGesture gesture(target);
    }
    EXPECT_EQ(ends.Take(), 0);
}

TEST(CEditGesture, EditableFiresOnAChangeOnly)
{
    CCapture target;
    CEditGesture gesture(target);
    CEventCounter changes(gesture.GetEditableChangedEventProvider());

    EXPECT_TRUE(gesture.IsEditable());
    gesture.SetEditable(true);
    EXPECT_EQ(changes.Take(), 0);
    gesture.SetEditable(false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(gesture.IsEditable());
}
